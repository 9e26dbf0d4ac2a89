#pragma once

#include "progress_events.h"
#include "transformer_events.h"

#include <functional>
#include <vector>

// The component's events: walks a copy of the listeners in the order of their registration, so that one may leave
// during an event. Answers are preset and stay so where nobody listens.
class EventSource {
  public:
    void AddListener(TransformerEvents *listener);
    void RemoveListener(TransformerEvents *listener);
    void AddProgressListener(ProgressEvents *listener);
    void RemoveProgressListener(ProgressEvents *listener);

    // Calls event once for each listener that is registered at that moment.
    void raise(const std::function<void(TransformerEvents &)> &event);
    void raiseProgress(const std::function<void(ProgressEvents &)> &event);
    // True while an event has not returned yet.
    [[nodiscard]] bool isRaising() const { return mDepth > 0; }
    // Called each time the outermost event has returned.
    void setIdleHandler(std::function<void()> handler) { mIdleHandler = std::move(handler); }

    // Message with an OK button. parameters fill the placeholders %0:S, %1:S ... of prompt.
    void tell(const QString &prompt, const QStringList &parameters = {});
    // An information box: something is done.
    void tellDone(const QString &prompt);
    void tellError(const QString &prompt, const QStringList &parameters = {});
    // Yes or No; false where nobody answers.
    [[nodiscard]] bool ask(const QString &prompt, const QStringList &parameters = {});
    // A question that the user can switch off; then the answer is yes.
    [[nodiscard]] bool askGeneral(const QString &prompt, const QString &title, const QStringList &parameters);
    void lastAction(const QString &action, const QString &detail = QString());

  private:
    template <class Listener>
    void walk(const std::vector<Listener *> &listeners, const std::function<void(Listener &)> &event);
    [[nodiscard]] qint32 messageBox(const QString &prompt, qint32 buttons, const QStringList &parameters);

    std::vector<TransformerEvents *> mListeners;
    std::vector<ProgressEvents *> mProgressListeners;
    std::function<void()> mIdleHandler;
    int mDepth = 0;
};
