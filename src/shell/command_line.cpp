#include "command_line.h"

#include "common_error_handler.h"
#include "message_style.h"
#include "product_identity.h"
#include "string_utilities.h"
#include "window_services.h"

#include <QFileInfo>

namespace {
QString withoutPair(const QString &text, QChar quote) {
    if (text.size() < 2 || !text.startsWith(quote) || !text.endsWith(quote))
        return text;
    return text.mid(1, text.size() - 2);
}
} // namespace

CommandLine::CommandLine(const QStringList &arguments, MessageBoxes &boxes, ErrorReport &errors)
    : mText(arguments.join(QLatin1Char(' '))), mBoxes(boxes), mErrors(errors) {}

QString CommandLine::StripOutsideQuotesOffString(const QString &text) {
    return withoutPair(withoutPair(text, QLatin1Char('"')), QLatin1Char('\''));
}

void CommandLine::GetProgramParameters() try {
    mFileName.clear();
    const QString text = StripOutsideQuotesOffString(TrimBlanks(mText));
    if (text.isEmpty())
        return;
    if (QFileInfo(text).isFile()) {
        mFileName = text;
        return;
    }
    QString error;
    for (const QString &part : text.split(QLatin1Char('/'))) {
        const QString trimmed = TrimBlanks(part);
        if (trimmed.isEmpty())
            continue;
        if (mFileName.isEmpty())
            mFileName = TrimBlanks(StripOutsideQuotesOffString(trimmed));
        else
            error = QStringLiteral("Invalid Command line parameters");
    }
    if (!error.isEmpty())
        mBoxes.MsgBox(error, MessageStyle::kExclamation, ProductIdentity::title());
}
ERROR_TAIL()
