#include "full_file.h"

#include "full_data.h"
#include "run_time_error.h"

FullFile::FullFile(const QString &tier) : mPath(filePath(QStringLiteral("full.k4p"))) {
    mBench.transformer.ChangeTier(tier);
    FullData(mBench.transformer).fill();
    bool saved = false;
    mBench.transformer.SaveFile(mPath, QString(), 0, saved);
    if (!saved)
        throw RunTimeError(ErrorNumber::kBadArgument, mPath, QStringLiteral("it was not saved"));
}
