#include "cls_mapping_gen.h"

#include "common_error_handler.h"
#include "mapping_commands.h"
#include "product_identity.h"
#include "transformer.h"
#include "window_services.h"

#include <QPlainTextEdit>
#include <QSaveFile>

#include <utility>

clsMappingGen::clsMappingGen(Transformer &transformer, MessageBoxes &boxes, const Translation &translation,
                             ErrorReport &errors, std::function<void()> freshStart)
    : mTransformer(transformer), mErrors(errors), mFreshStart(std::move(freshStart)),
      mReader(mScript, boxes, translation), mReplay(transformer, boxes, translation) {}

bool clsMappingGen::FileLoad(const QString &FileName, bool blnLoadInitialStateFieldsOnly) try {
    if (!ReadFile(FileName, false))
        return false;
    ExecuteFields(true);
    mTransformer.ResetDatabase();
    if (!blnLoadInitialStateFieldsOnly)
        ExecuteFields(true);
    return true;
}
ERROR_TAIL_AS("LoadFile", false)

void clsMappingGen::ResetToDefaults() try {
    ClearDetails();
    mFreshStart();
}
ERROR_TAIL()

bool clsMappingGen::FileSave(const QString &FileName) try {
    QSaveFile file(FileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    MappingScript kept = mScript;
    mScript.fileName = FileName;
    mScript.databaseFields = mTransformer.GetDatabaseFieldList();
    for (const QString &line : UICollection())
        file.write((line + QStringLiteral("\r\n")).toUtf8());
    if (file.commit())
        return true;
    mScript = std::move(kept);
    return false;
}
ERROR_TAIL(false)

QStringList clsMappingGen::UICollection() try {
    return mScript.lines({mTransformer.GetTierName(), ProductIdentity::fullVersion(), QDate::currentDate()});
}
ERROR_TAIL({})

void clsMappingGen::ClearDetails() {
    mScript = {};
    mReader.forgetVisited();
}

bool clsMappingGen::ReadFile(const QString &FileName, bool blnInitialStates) try {
    if (!blnInitialStates)
        ClearDetails();
    const bool read = mReader.read(FileName, blnInitialStates);
    if (read && !blnInitialStates)
        mScript.fileName = FileName;
    return read;
}
ERROR_TAIL(false)

void clsMappingGen::ExecuteFields(bool blnInitialStates) try {
    mReplay.run(blnInitialStates ? mScript.allFields : mScript.uiFields);
}
ERROR_TAIL_AS("ExecuteInitialStateUIFields")

QString clsMappingGen::UIFieldCode(const QString &Line) { return MappingLine::code(Line); }

void clsMappingGen::GetAsTextBox(QPlainTextEdit &Box, const QStringList &Lines) {
    Box.clear();
    for (const QString &line : Lines)
        Box.insertPlainText(line + QStringLiteral("\r\n"));
}
