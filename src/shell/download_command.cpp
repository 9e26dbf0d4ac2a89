#include "download_command.h"

#include "common_error_handler.h"
#include "downloader.h"
#include "message_style.h"
#include "radio_models.h"
#include "transformer.h"
#include "value_text.h"

#include <QHash>

namespace {
// The downloader's types by model; any other model leaves the type alone.
QHash<QString, int> radioTypes() {
    return {{QStringLiteral("KX4700"), 4700},
            {RadioModels::kProgrammable, 4600},
            {QStringLiteral("KX4000 Cal"), 4600},
            {QStringLiteral("ZB2500 Rx"), 4600},
            {QStringLiteral("ZB2500 Tx"), 4600}};
}
} // namespace

clsDownloadCommand::clsDownloadCommand(const ProcessValues &process, DownloadManager &downloader, MessageBoxes &boxes,
                                       ErrorReport &errors)
    : mProcess(process), mDownloader(downloader), mBoxes(boxes), mErrors(errors) {}

void clsDownloadCommand::mnuDownload_Click() try {
    Transformer &transformer = *mProcess.objTransformer;
    const QString model = transformer.GetRadioModel();
    const bool starts = model == RadioModels::kProgrammable || RadioModels::IsCalibration(model);
    if (starts && !mDownloader.IsAttached() && !mDownloader.Attach() && !mDownloader.Create())
        mBoxes.TranslateMsgBox(QStringLiteral("The downloader can not be started.  Please terminate the currently "
                                              "active download component before proceeding."),
                               MessageStyle::kOkOnly + MessageStyle::kCritical, QStringLiteral("Download load error"),
                               QString());
    if (!mDownloader.IsAttached())
        return;
    const QHash<QString, int> types = radioTypes();
    if (types.contains(model))
        mDownloader.SetRadioType(types.value(model));
    mDownloader.SetPort(ValueText::of(transformer.GetSetting(QStringLiteral("CommPortNumber"), QStringLiteral("1"))),
                        true);
}
ERROR_TAIL()
