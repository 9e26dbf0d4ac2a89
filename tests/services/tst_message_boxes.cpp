#include "common_error_handler.h"
#include "message_style.h"
#include "product_identity.h"
#include "rows.h"
#include "test_services.h"
#include "translated_message_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {
// What stood on the screen.
struct Seen {
    QString text;
    QString title;
    QStringList buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    QWidget *parent = nullptr;
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
        mSeen = {box->text(), box->windowTitle(), {}, box->icon(), box->textFormat(), box->parentWidget(), false};
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
    void keysAnswerWhatTheyShould() {
        using Act = std::function<void(QMessageBox &)>;
        for (const auto &[style, act, answer] : Rows<int, Act, int>{
                 {"Esc: OK alone", MessageStyle::kOkOnly, pressEscape, MessageAnswer::kOk},
                 {"Esc: OK, cancel", MessageStyle::kOkCancel, pressEscape, MessageAnswer::kCancel},
                 {"Esc: yes, no", MessageStyle::kYesNo, pressEscape, MessageAnswer::kNo},
                 {"Esc: yes, no, cancel", MessageStyle::kYesNoCancel, pressEscape, MessageAnswer::kCancel},
                 {"Esc: yes alone", 6, pressEscape, MessageAnswer::kYes},
                 {"Enter presses the first", MessageStyle::kYesNoCancel, pressEnter, MessageAnswer::kYes},
                 {"not to be closed", MessageStyle::kAbortRetryIgnore, escapeThen(u"&Retry"_s), MessageAnswer::kRetry},
             }) {
            TestServices services(nullptr);
            TranslatedMessageBoxes boxes(services.translation, services.errors);
            int answered = -1;
            BoxProbe().watch([&boxes, &answered, buttons = style] { answered = boxes.MsgBox(u"?"_s, buttons, {}); },
                             act);
            QCOMPARE(answered, answer);
        }
    }

    void shortPromptIsPaddedTo50() {
        for (const int length : {49, 50, 51}) {
            TestServices services(nullptr);
            TranslatedMessageBoxes boxes(services.translation, services.errors);
            const Seen seen =
                BoxProbe().watch([&] { boxes.TranslateMsgBox(QString(length, u'x'), 0, {}, {}); }, pressEscape);
            QCOMPARE(int(seen.text.size()), std::max(length, 50));
            QCOMPARE(seen.title, ProductIdentity::title());
        }
    }

    void markupInAValueIsShownAsItStands() {
        TestServices services(nullptr);
        TranslatedMessageBoxes boxes(services.translation, services.errors);
        const Seen seen = BoxProbe().watch(
            [&] {
                boxes.TranslateMsgBox(u"%0:S\r\nstands on the second of the two lines of it"_s, 0, {}, u"<b>x</b>"_s);
            },
            pressEscape);
        QCOMPARE(seen.format, Qt::PlainText);
        QCOMPARE(seen.text.trimmed(), u"<b>x</b>\nstands on the second of the two lines of it"_s);
    }

    void everyTextOfTheTranslatedBoxIsTranslated() {
        TestServices services(nullptr);
        services.translate(
            {u"Save %0:S?|Enregistrer %0:S ?"_s, u"Tier|Niveau"_s, u"Error|Erreur"_s, u"&Yes|&Oui"_s, u"&No|&Non"_s});
        TranslatedMessageBoxes boxes(services.translation, services.errors);
        const Seen seen = BoxProbe().watch(
            [&] {
                boxes.TranslateMsgBox(u"Save %0:S?"_s, MessageStyle::kYesNo | MessageStyle::kExclamation, u"Error"_s,
                                      u"Tier"_s);
            },
            pressEscape);
        QCOMPARE(seen.text.trimmed(), u"Enregistrer Niveau ?"_s);
        QCOMPARE(seen.title, u"Erreur"_s);
        QCOMPARE(seen.buttons, (QStringList{u"&Non"_s, u"&Oui"_s}));
        QCOMPARE(seen.icon, QMessageBox::Warning);
        const Seen plain =
            BoxProbe().watch([&] { boxes.MsgBox(u"Tier"_s, MessageStyle::kCritical, u"Error"_s); }, pressEscape);
        QCOMPARE(plain.text, u"Tier"_s); // a plain one is left as it is
        QCOMPARE(plain.title, u"Error"_s);
        QCOMPARE(plain.icon, QMessageBox::Critical);
    }

    void boxStandsOverTheActiveWindow() {
        TestServices services(nullptr);
        TranslatedMessageBoxes boxes(services.translation, services.errors);
        QWidget window;
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const Seen seen = BoxProbe().watch([&] { boxes.MsgBox(u"?"_s, 0, {}); }, pressEscape);
        QCOMPARE(seen.parent, &window);
    }

    void pointerIsTheArrowUnderAnHourglass() {
        TestServices services(nullptr);
        TranslatedMessageBoxes boxes(services.translation, services.errors);
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const Seen seen = BoxProbe().watch([&] { boxes.MsgBox(u"?"_s, 0, {}); }, pressEscape);
        QVERIFY(seen.arrow);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QApplication::restoreOverrideCursor();
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }
};

QTEST_MAIN(tst_message_boxes)
#include "tst_message_boxes.moc"
