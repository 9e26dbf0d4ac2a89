#include "help_whats_this.h"

#include "cls_control_item.h"
#include "common_error_handler.h"
#include "form_host.h"
#include "form_nodes.h"
#include "help_field_text.h"
#include "pending_events.h"
#include "process_values.h"

#include <QApplication>
#include <QEventLoop>
#include <QHelpEvent>
#include <QWhatsThis>
#include <QWidget>

#include <utility>

namespace {
const QString kSub = QStringLiteral("Sub");

// Ends the loop when the mode is left, be it by a click, by Esc or by another window.
class ModeEnd final : public QObject {
  public:
    explicit ModeEnd(QEventLoop &loop) : mLoop(loop) { qApp->installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override {
        if (event->type() == QEvent::LeaveWhatsThisMode)
            mLoop.quit();
        return false;
    }

  private:
    QEventLoop &mLoop;
};
} // namespace

HelpWhatsThis::HelpWhatsThis(const ProcessValues &process, const FormHost &host, FormNodes &nodes,
                             const HelpFieldText &texts, ErrorReport &errors, std::function<void(qint32)> showTopic)
    : mProcess(process), mHost(host), mNodes(nodes), mTexts(texts), mErrors(errors), mShowTopic(std::move(showTopic)) {
    qApp->installEventFilter(this);
}

HelpWhatsThis::~HelpWhatsThis() = default;

void HelpWhatsThis::ShowWhatsThisHelp(qint32 HelpContextID) try {
    QWidget *widget = QApplication::focusWidget();
    const Ifield *field = fieldAt(widget);
    const qint32 ofField = field == nullptr ? 0 : mTexts.NumberOf(*field);
    const qint32 topic = HelpContextID == 0 ? ofField : HelpContextID; // a field without a number of its own
    if (topic == 0)
        return;
    const QString text = topic == ofField ? mTexts.Of(field->Ifield_GetUIID()) : QString();
    if (text.isEmpty())
        mShowTopic(topic);
    else
        show(widget->mapToGlobal(QPoint(0, widget->height())), text, topic, widget);
}
ERROR_TAIL()

void HelpWhatsThis::StartWhatsThisMode() try {
    const auto enabler = mProcess.colEnablers.Item(mProcess.CurrentEnablerKey);
    if (!mHost.IsFormLoaded() || enabler == nullptr)
        return;
    focusTree();
    enabler->Ienabler_SetWhatsThisHelpIDs();
    QWhatsThis::enterWhatsThisMode();
    {
        QEventLoop loop;
        const ModeEnd end(loop);
        loop.exec();
    }
    enabler->Ienabler_ClearWhatsThisHelpIDs();
    focusTree();
}
ERROR_TAIL()

void HelpWhatsThis::focusTree() {
    if (mProcess.CurrentEnablerKey == kSub)
        return;
    mNodes.SetFocus();
    letPendingEventsRun();
}

Ifield *HelpWhatsThis::fieldAt(QObject *widget) {
    for (; widget != nullptr; widget = widget->parent()) {
        if (auto *field = dynamic_cast<Ifield *>(widget))
            return field;
    }
    return nullptr;
}

bool HelpWhatsThis::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::WhatsThis:
    case QEvent::QueryWhatsThis:
        return watched->isWidgetType() && answer(watched, *event);
    case QEvent::WhatsThisClicked: {
        const qint32 topic = HelpFieldText::TopicOf(static_cast<QWhatsThisClickedEvent *>(event)->href());
        if (topic != 0)
            mShowTopic(topic);
        return topic != 0;
    }
    default:
        return false;
    }
}

bool HelpWhatsThis::answer(QObject *widget, QEvent &event) {
    const Ifield *field = fieldAt(widget);
    const qint32 number = field == nullptr ? 0 : mTexts.NumberOf(*field);
    if (number == 0)
        return false;
    event.accept();
    if (event.type() == QEvent::WhatsThis) {
        const QString text = mTexts.Of(field->Ifield_GetUIID());
        const QPoint place = static_cast<QHelpEvent &>(event).globalPos();
        if (text.isEmpty())
            mShowTopic(number);
        else
            show(place, text, number, static_cast<QWidget *>(widget));
    }
    return true;
}

void HelpWhatsThis::show(const QPoint &place, const QString &text, qint32 number, QWidget *widget) const {
    QWhatsThis::showText(place, text + mTexts.Link(number), widget);
}
