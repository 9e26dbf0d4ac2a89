#include "event_source.h"

#include "message_style.h"
#include "string_utilities.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace {
template <class Listener>
void add(std::vector<Listener *> &listeners, Listener *listener) {
    if (listener != nullptr && std::ranges::find(listeners, listener) == listeners.end())
        listeners.push_back(listener);
}

// Bars separate the parameters; one inside a value would start another.
QString joined(const QStringList &parameters) {
    std::vector<QVariant> values;
    for (QString value : parameters)
        values.emplace_back(value.replace(u'|', u'\u00a6'));
    return MakeParamString(values);
}
} // namespace

void EventSource::AddListener(TransformerEvents *listener) { add(mListeners, listener); }
void EventSource::RemoveListener(TransformerEvents *listener) { std::erase(mListeners, listener); }
void EventSource::AddProgressListener(ProgressEvents *listener) { add(mProgressListeners, listener); }
void EventSource::RemoveProgressListener(ProgressEvents *listener) { std::erase(mProgressListeners, listener); }

template <class Listener>
void EventSource::walk(const std::vector<Listener *> &listeners, const std::function<void(Listener &)> &event) {
    {
        const QScopedValueRollback<int> depth(mDepth, mDepth + 1);
        // A copy: a listener may leave, and another come, during an event.
        for (Listener *listener : std::vector<Listener *>(listeners)) {
            if (std::ranges::find(listeners, listener) != listeners.end())
                event(*listener);
        }
    }
    if (mDepth == 0 && mIdleHandler)
        mIdleHandler();
}

void EventSource::raise(const std::function<void(TransformerEvents &)> &event) { walk(mListeners, event); }
void EventSource::raiseProgress(const std::function<void(ProgressEvents &)> &event) { walk(mProgressListeners, event); }

qint32 EventSource::messageBox(const QString &prompt, qint32 buttons, const QStringList &parameters) {
    qint32 answer = MessageAnswer::kNone;
    raise([&](TransformerEvents &listener) {
        listener.TransformerEvents_MsgBox(prompt, buttons, QString(), answer, joined(parameters));
    });
    return answer;
}

void EventSource::tell(const QString &prompt, const QStringList &parameters) {
    (void)messageBox(prompt, MessageStyle::kOkOnly | MessageStyle::kExclamation, parameters);
}

void EventSource::tellDone(const QString &prompt) {
    (void)messageBox(prompt, MessageStyle::kOkOnly | MessageStyle::kInformation, {});
}

void EventSource::tellError(const QString &prompt, const QStringList &parameters) {
    (void)messageBox(prompt, MessageStyle::kOkOnly | MessageStyle::kCritical, parameters);
}

bool EventSource::ask(const QString &prompt, const QStringList &parameters) {
    return messageBox(prompt, MessageStyle::kYesNo | MessageStyle::kQuestion, parameters) == MessageAnswer::kYes;
}

bool EventSource::askGeneral(const QString &prompt, const QString &title, const QStringList &parameters) {
    qint32 answer = MessageAnswer::kNone;
    raise([&](TransformerEvents &listener) {
        listener.TransformerEvents_GeneralDialog(prompt, MessageStyle::kYesNo | MessageStyle::kQuestion, title, answer,
                                                 joined(parameters));
    });
    return answer == MessageAnswer::kYes;
}

void EventSource::lastAction(const QString &action, const QString &detail) {
    raise([&](TransformerEvents &listener) { listener.TransformerEvents_LastAction(action, detail); });
}
