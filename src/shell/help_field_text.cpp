#include "help_field_text.h"

#include "currency.h"
#include "ifield.h"
#include "transformer.h"
#include "translation.h"

namespace {
const QString kLink = QStringLiteral("topic:");
}

QString HelpFieldText::Of(const QString &UIID) const {
    const QString help = mTransformer.GetHelpText(UIID);
    if (help.isEmpty())
        return {};
    const QString label = mTranslation.NLSStr(mTransformer.GetLabel(UIID)).toHtmlEscaped();
    QString text = QStringLiteral("<p><b>%1</b></p><p>%2</p>").arg(label, mTranslation.NLSStr(help).toHtmlEscaped());
    const Currency step = mTransformer.GetStepValue(UIID);
    if (step > Currency()) {
        text += line(QStringLiteral("Min"), QString::number(mTransformer.GetMinValue(UIID)));
        text += line(QStringLiteral("Max"), QString::number(mTransformer.GetMaxValue(UIID)));
        if (step != Currency::fromTenThousandths(10000))
            text += line(QStringLiteral("Step"), step.toString());
    }
    const QString unit = mTransformer.GetFieldDescription(UIID);
    if (!unit.isEmpty() && unit != QStringLiteral("units"))
        text += line(QStringLiteral("Unit"), mTranslation.NLSStr(unit));
    return text;
}

qint32 HelpFieldText::NumberOf(const Ifield &field) const {
    const qint32 own = field.Ifield_GetHelpID();
    return own != 0 ? own : mTransformer.GetHelpID(field.Ifield_GetUIID());
}

QString HelpFieldText::line(const QString &word, const QString &text) const {
    return QStringLiteral("<br>%1: %2").arg(mTranslation.NLSStr(word).toHtmlEscaped(), text.toHtmlEscaped());
}

QString HelpFieldText::Link(qint32 number) const {
    return QStringLiteral("<p><a href=\"%1%2\">%3</a></p>")
        .arg(kLink)
        .arg(number)
        .arg(mTranslation.NLSStr(QStringLiteral("Help")).toHtmlEscaped());
}

qint32 HelpFieldText::TopicOf(const QString &link) {
    return link.startsWith(kLink) ? link.mid(kLink.size()).toInt() : 0;
}
