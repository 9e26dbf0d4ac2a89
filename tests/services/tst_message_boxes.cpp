#include "common_error_handler.h"
#include "message_style.h"
#include "product_identity.h"
#include "test_services.h"
#include "translated_message_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {
// What stood on the screen.
struct Seen {
    QString text;
    QString title;
    QStringList buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    QWidget *parent = nullptr;
    QString defaultButton;
    bool arrow = false;
};

// Shows a box by show, notes what it looks like and hands it to act.
class BoxProbe {
  public:
    Seen watch(const std::function<void()> &show, const std::function<void(QMessageBox &)> &act) {
        QTimer::singleShot(0, [this, act] { look(act); });
        show();
        return mSeen;
    }

  private:
    void look(const std::function<void(QMessageBox &)> &act) {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box == nullptr)
            qFatal("no box");
        mSeen = {box->text(),         box->windowTitle(),           {},   box->icon(), box->textFormat(),
                 box->parentWidget(), box->defaultButton()->text(), false};
        for (const QAbstractButton *button : box->buttons())
            mSeen.buttons << button->text();
        mSeen.buttons.sort();
        const QCursor *cursor = QApplication::overrideCursor();
        mSeen.arrow = cursor != nullptr && cursor->shape() == Qt::ArrowCursor;
        act(*box);
    }

    Seen mSeen;
};

void pressEscape(QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); }
void pressEnter(QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); }

// Esc first, which must be without effect; then the button.
std::function<void(QMessageBox &)> escapeThen(const QString &text) {
    return [text](QMessageBox &box) {
        QTest::keyClick(&box, Qt::Key_Escape);
        box.close();
        for (QAbstractButton *button : box.buttons()) {
            if (button->text() == text)
                button->click();
        }
    };
}
} // namespace

class tst_message_boxes final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void escAnswersWhatChangesLeast_data();
    void escAnswersWhatChangesLeast();
    void enterPressesTheFirstButton();
    void abortRetryIgnoreCannotBeClosed();
    void shortPromptIsPaddedTo50_data();
    void shortPromptIsPaddedTo50();
    void markupInAValueIsShownAsItStands();
    void everyTextOfTheTranslatedBoxIsTranslated();
    void plainBoxIsLeftAsItIs();
    void boxStandsOverTheActiveWindow();
    void pointerIsTheArrowUnderAnHourglass();
};

void tst_message_boxes::escAnswersWhatChangesLeast_data() {
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("answer");
    QTest::newRow("OK alone") << MessageStyle::kOkOnly << MessageAnswer::kOk;
    QTest::newRow("OK, cancel") << MessageStyle::kOkCancel << MessageAnswer::kCancel;
    QTest::newRow("yes, no") << MessageStyle::kYesNo << MessageAnswer::kNo;
    QTest::newRow("yes, no, cancel") << MessageStyle::kYesNoCancel << MessageAnswer::kCancel;
    QTest::newRow("yes alone") << 6 << MessageAnswer::kYes;
}

void tst_message_boxes::escAnswersWhatChangesLeast() {
    QFETCH(int, buttons);
    TestServices services(nullptr);
    TranslatedMessageBoxes boxes(services.translation, services.errors);
    int answer = -1;
    BoxProbe().watch([&] { answer = boxes.TranslateMsgBox(QStringLiteral("?"), buttons, {}, {}); }, pressEscape);
    QTEST(answer, "answer");
}

void tst_message_boxes::enterPressesTheFirstButton() {
    TestServices services(nullptr);
    TranslatedMessageBoxes boxes(services.translation, services.errors);
    int answer = -1;
    const Seen seen = BoxProbe().watch(
        [&] { answer = boxes.MsgBox(QStringLiteral("?"), MessageStyle::kYesNoCancel, {}); }, pressEnter);
    QCOMPARE(answer, MessageAnswer::kYes);
    QCOMPARE(seen.defaultButton, QStringLiteral("&Yes"));
}

void tst_message_boxes::abortRetryIgnoreCannotBeClosed() {
    TestServices services(nullptr);
    TranslatedMessageBoxes boxes(services.translation, services.errors);
    int answer = -1;
    BoxProbe().watch([&] { answer = boxes.MsgBox(QStringLiteral("?"), MessageStyle::kAbortRetryIgnore, {}); },
                     escapeThen(QStringLiteral("&Retry")));
    QCOMPARE(answer, MessageAnswer::kRetry);
}

void tst_message_boxes::shortPromptIsPaddedTo50_data() {
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("shown");
    QTest::newRow("49 characters") << 49 << 50;
    QTest::newRow("50 characters") << 50 << 50;
    QTest::newRow("51 characters") << 51 << 51;
}

void tst_message_boxes::shortPromptIsPaddedTo50() {
    QFETCH(int, length);
    TestServices services(nullptr);
    TranslatedMessageBoxes boxes(services.translation, services.errors);
    const Seen seen = BoxProbe().watch([&] { boxes.TranslateMsgBox(QString(length, u'x'), 0, {}, {}); }, pressEscape);
    QTEST(int(seen.text.size()), "shown");
    QCOMPARE(seen.title, ProductIdentity::title());
}

void tst_message_boxes::markupInAValueIsShownAsItStands() {
    TestServices services(nullptr);
    TranslatedMessageBoxes boxes(services.translation, services.errors);
    const Seen seen = BoxProbe().watch(
        [&] {
            boxes.TranslateMsgBox(QStringLiteral("%0:S\r\nstands on the second of the two lines of it"), 0, {},
                                  QStringLiteral("<b>x</b>"));
        },
        pressEscape);
    QCOMPARE(seen.format, Qt::PlainText);
    QCOMPARE(seen.text.trimmed(), QStringLiteral("<b>x</b>\nstands on the second of the two lines of it"));
}

void tst_message_boxes::everyTextOfTheTranslatedBoxIsTranslated() {
    TestServices services(nullptr);
    services.translate({QStringLiteral("Save %0:S?|Enregistrer %0:S ?"), QStringLiteral("Tier|Niveau"),
                        QStringLiteral("Error|Erreur"), QStringLiteral("&Yes|&Oui"), QStringLiteral("&No|&Non")});
    TranslatedMessageBoxes boxes(services.translation, services.errors);
    const Seen seen = BoxProbe().watch(
        [&] {
            boxes.TranslateMsgBox(QStringLiteral("Save %0:S?"), MessageStyle::kYesNo | MessageStyle::kExclamation,
                                  QStringLiteral("Error"), QStringLiteral("Tier"));
        },
        pressEscape);
    QCOMPARE(seen.text.trimmed(), QStringLiteral("Enregistrer Niveau ?"));
    QCOMPARE(seen.title, QStringLiteral("Erreur"));
    QCOMPARE(seen.buttons, (QStringList{QStringLiteral("&Non"), QStringLiteral("&Oui")}));
    QCOMPARE(seen.icon, QMessageBox::Warning);
}

void tst_message_boxes::plainBoxIsLeftAsItIs() {
    TestServices services(nullptr);
    services.translate({QStringLiteral("Short|Court"), QStringLiteral("Error|Erreur")});
    TranslatedMessageBoxes boxes(services.translation, services.errors);
    const Seen seen = BoxProbe().watch(
        [&] { boxes.MsgBox(QStringLiteral("Short"), MessageStyle::kCritical, QStringLiteral("Error")); }, pressEscape);
    QCOMPARE(seen.text, QStringLiteral("Short"));
    QCOMPARE(seen.title, QStringLiteral("Error"));
    QCOMPARE(seen.icon, QMessageBox::Critical);
}

void tst_message_boxes::boxStandsOverTheActiveWindow() {
    TestServices services(nullptr);
    TranslatedMessageBoxes boxes(services.translation, services.errors);
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const Seen seen = BoxProbe().watch([&] { boxes.MsgBox(QStringLiteral("?"), 0, {}); }, pressEscape);
    QCOMPARE(seen.parent, &window);
}

void tst_message_boxes::pointerIsTheArrowUnderAnHourglass() {
    TestServices services(nullptr);
    TranslatedMessageBoxes boxes(services.translation, services.errors);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const Seen seen = BoxProbe().watch([&] { boxes.MsgBox(QStringLiteral("?"), 0, {}); }, pressEscape);
    QVERIFY(seen.arrow);
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

QTEST_MAIN(tst_message_boxes)
#include "tst_message_boxes.moc"
