#include "component_listener.h"

#include "translation.h"
#include "value_text.h"

using namespace Qt::StringLiterals;

void ComponentListener::add(const QString &line) {
    log.append(line);
    if (onEvent)
        onEvent(line);
}

QStringList ComponentListener::of(const QString &event) const {
    QStringList lines;
    for (const QString &line : log) {
        if (line == event || line.startsWith(event + u' '))
            lines.append(line);
    }
    return lines;
}

void ComponentListener::TransformerEvents_MsgBox(const QString &Prompt, qint32 Buttons, const QString & /*Title*/,
                                                 qint32 &Answer, const QString &strParameters) {
    const QString text = Translation::Fill(Prompt, strParameters.split(u'|'));
    messages.append(text);
    add(u"MsgBox "_s + text);
    Answer = (Buttons & 7) == 0 ? 1 : answer;
}

void ComponentListener::TransformerEvents_GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title,
                                                        qint32 &Answer, const QString &strParameters) {
    TransformerEvents_MsgBox(Prompt, Buttons, Title, Answer, strParameters);
}

void ComponentListener::TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr,
                                                              const QVariant &Value) {
    add(u"UpdateUIFieldByUIID %1 %2 %3"_s.arg(UIID).arg(RecordNr).arg(ValueText::of(Value)));
}

void ComponentListener::TransformerEvents_ChangeToTier(const QString &TierKey, const QStringList & /*FormList*/,
                                                       const QStringList & /*FormDescList*/,
                                                       const QHash<QString, QVariant> & /*FormAccessLevels*/,
                                                       const QHash<QString, QVariant> & /*FormNetworks*/,
                                                       const QStringList & /*FormTypeList*/, bool &Result) {
    add(u"ChangeToTier "_s + TierKey);
    Result = true;
}
