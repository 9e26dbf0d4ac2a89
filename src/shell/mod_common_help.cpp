#include "mod_common_help.h"

#include "cls_help.h"
#include "help_file_name.h"
#include "help_pages.h"
#include "message_style.h"
#include "string_utilities.h"
#include "translation.h"
#include "window_services.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

modCommonHelp::modCommonHelp(const Translation &translation, MessageBoxes &boxes, clsHelp &help, QString folder)
    : mTranslation(translation), mBoxes(boxes), mHelp(help), mFolder(std::move(folder)) {}

QString modCommonHelp::HelpFolder() {
    const QString program = QCoreApplication::applicationDirPath();
    return IsExecutingFromIDE() ? program + QStringLiteral("/../../Common") : program;
}

QString modCommonHelp::HelpFile(const QString &radioModel, bool compiled) const {
    const QString name = compiled ? HelpFileName::compiled(radioModel) : HelpFileName::windows(radioModel);
    return mFolder + u'/' + mTranslation.NLSStr(name);
}

// The names with ".hlp" first, then those with ".chm".
bool modCommonHelp::isKnown(const QString &file) const {
    const QString name = QFileInfo(file).fileName();
    for (const QString &known : HelpFileName::all()) {
        if (name.compare(mTranslation.NLSStr(known), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

bool modCommonHelp::CallHelp(const QString &file, HelpCommand command, const QVariant &topic, QWidget *form) {
    if (!isKnown(file) || !QFileInfo(HelpPages::folderOf(file) + QStringLiteral("/index.html")).isFile())
        return fail(QStringLiteral("Help File not defined"));
    mHelp.CHMFile(file);
    switch (command) {
    case HelpCommand::kContents:
        mHelp.HHDisplayContents(form);
        return true;
    case HelpCommand::kSearch:
        mHelp.HHDisplaySearch(form);
        return true;
    case HelpCommand::kTopic: {
        const bool isNumber = topic.metaType().id() != QMetaType::QString;
        const QString place = isNumber ? HelpPages::pageOfTopic(topic.toInt()) : topic.toString();
        return mHelp.HHDisplayPlace(place, form) || fail(QStringLiteral("Help File not defined"));
    }
    }
    return fail(QStringLiteral("Unknown Error"));
}

bool modCommonHelp::fail(const QString &text) {
    mBoxes.TranslateMsgBox(text, MessageStyle::kExclamation, QString(), QString());
    return false;
}
