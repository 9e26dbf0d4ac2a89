#include "call_log.h"
#include "progress_info.h"
#include "recording_transformer.h"
#include "test_services.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

namespace {
// The progress window of one operation, run as its user sees it; during is what happens while the operation runs.
class ProgressBench {
  public:
    explicit ProgressBench(InterrogationType type)
        : window(services.process, services.translation, services.errors, type, QStringLiteral("COM1: <Bench>"),
                 nullptr) {}

    CallLog log;
    RecordingTransformer component{log};
    TestServices services{&component};
    frmProgressInfo window;
    int operations = 0;

    void run(const QString &operation, const std::function<void()> &during) {
        component.when(operation).runs([this, during] {
            ++operations;
            during();
        });
        window.show();
        QCoreApplication::processEvents();
    }
    void start(qint32 total, const char *title) {
        component.raiseProgress([=](ProgressEvents &events) {
            events.mobjTransformerEvents_ProgressBarStart(total, QString::fromLatin1(title));
        });
    }
    void ping(qint32 increment, const char *item = "", const char *percentage = "") {
        component.raiseProgress([=](ProgressEvents &events) {
            events.mobjTransformerEvents_ProgressPing(increment, QString::fromLatin1(item),
                                                      QString::fromLatin1(percentage));
        });
    }
    void end(bool forceClose) {
        component.raiseProgress(
            [=](ProgressEvents &events) { events.mobjTransformerEvents_ProgressBarEnd(forceClose); });
    }
    void escape() { QTest::keyClick(window.windowHandle(), Qt::Key_Escape); }
    [[nodiscard]] qsizetype aborts() const { return log.linesOf(QStringLiteral("AbortComms")).size(); }
    [[nodiscard]] QString text(const char *label) const {
        return window.findChild<QLabel *>(QString::fromLatin1(label))->text();
    }
    [[nodiscard]] QPushButton &button(const char *name) const {
        return *window.findChild<QPushButton *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QProgressBar &bar() const { return *window.findChild<QProgressBar *>(); }
    // "OK Cancel": a disabled button in brackets, a hidden one left out.
    [[nodiscard]] QString buttons() const {
        QStringList shown;
        for (const char *name : {"cmdOK", "cmdCancel"}) {
            if (!button(name).isHidden())
                shown << (button(name).isEnabled() ? QStringLiteral("%1") : QStringLiteral("(%1)"))
                             .arg(QString::fromLatin1(name).mid(3));
        }
        return shown.join(u' ');
    }
};

const QString kInterrogateRadio = QStringLiteral("InterrogateRadio");
const QString kReadRadio = QStringLiteral("ReadRadio");
const QString kProgramRadio = QStringLiteral("ProgramRadio");
} // namespace

class DocumentsProgressTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void eachTypeStartsItsOperationOnce_data();
    void eachTypeStartsItsOperationOnce();
    void buttonsFollowTheTitle_data();
    void buttonsFollowTheTitle();
    void pingsStayWithinTheBar_data();
    void pingsStayWithinTheBar();
    void emptyTextsLeaveTheLabels();
    void endOfAnInterrogation_data();
    void endOfAnInterrogation();
    void endOfAnotherPhaseHides();
    void detailsArePlainText();
    void closingAsksForAnAbort_data();
    void closingAsksForAnAbort();
    void enterDoesNotAbort();
    void noWindowIsLeftBehind_data();
    void noWindowIsLeftBehind();
    void theWindowKeepsItsSize();
};

void DocumentsProgressTest::eachTypeStartsItsOperationOnce_data() {
    QTest::addColumn<qint32>("type");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("title");
    QTest::newRow("interrogate") << 0 << kInterrogateRadio << QStringLiteral("InterrogateRadio()")
                                 << QStringLiteral("Radio Interrogation");
    QTest::newRow("read") << 1 << kReadRadio << QStringLiteral("ReadRadio(true)") << QStringLiteral("Reading Radio");
    QTest::newRow("program") << 2 << kProgramRadio << QStringLiteral("ProgramRadio()")
                             << QStringLiteral("Radio Interrogation");
}

void DocumentsProgressTest::eachTypeStartsItsOperationOnce() {
    QFETCH(qint32, type);
    QFETCH(QString, operation);
    QFETCH(QString, call);
    QFETCH(QString, title);
    ProgressBench bench{InterrogationType(type)};
    QString shownTitle;
    bench.run(operation, [&] {
        shownTitle = bench.window.windowTitle();
        bench.window.hide(); // shown again, as after a message box: no second start
        bench.window.show();
        QCoreApplication::processEvents();
    });
    QCOMPARE(shownTitle, title);
    QCOMPARE(bench.log.linesOf(operation), QStringList(call));
    QCOMPARE(bench.operations, 1);
    QCOMPARE(bench.window.Result(), type == 1);
}

void DocumentsProgressTest::buttonsFollowTheTitle_data() {
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("buttons");
    QTest::addColumn<bool>("saysWhyNot");
    const auto row = [](const char *title, const char *shown, const char *buttons, bool saysWhyNot) {
        QTest::newRow(title) << QString::fromLatin1(title) << QString::fromLatin1(shown) << QString::fromLatin1(buttons)
                             << saysWhyNot;
    };
    row("Radio Interrogation", "Radio Interrogation", "(OK) Cancel", false);
    row("  Radio Interrogation ", "Radio Interrogation", "(OK) Cancel", false);
    row("Programming Radio", "Programming Radio", "(Cancel)", true);
    row("Reading Radio", "Reading Radio", "Cancel", false);
    row("radio interrogation", "radio interrogation", "Cancel", false);
    row("   ", "Progress", "Cancel", false);
}

void DocumentsProgressTest::buttonsFollowTheTitle() {
    QFETCH(QString, title);
    QFETCH(QString, shown);
    QFETCH(QString, buttons);
    QFETCH(bool, saysWhyNot);
    ProgressBench bench(InterrogationType::kProgram);
    bench.run(kProgramRadio, [&] {
        bench.start(0, "Programming Radio"); // what an earlier phase left must not stay
        bench.start(10, title.toLatin1().constData());
        QCOMPARE(bench.window.windowTitle(), shown);
        QCOMPARE(bench.buttons(), buttons);
        QCOMPARE(!bench.window.findChild<QLabel *>(QStringLiteral("lblNoCancel"))->isHidden(), saysWhyNot);
        QVERIFY(bench.window.isVisible());
    });
    QCOMPARE(bench.operations, 1);
}

void DocumentsProgressTest::pingsStayWithinTheBar_data() {
    QTest::addColumn<qint32>("total");
    QTest::addColumn<QList<qint32>>("pings");
    QTest::addColumn<qint32>("value"); // -1: the bar is hidden
    QTest::newRow("plain count") << 10 << QList<qint32>{1, 2} << 3;
    QTest::newRow("a ping at the end stays there") << 3 << QList<qint32>{3, 1} << 3;
    QTest::newRow("a ping over the end stops there") << 3 << QList<qint32>{2, 5} << 3;
    QTest::newRow("a huge ping does not overflow") << 2000000000 << QList<qint32>{1900000000, 2000000000} << 2000000000;
    QTest::newRow("no total hides the bar") << 0 << QList<qint32>{5} << -1;
    QTest::newRow("a negative total hides the bar") << -1 << QList<qint32>{5} << -1;
}

void DocumentsProgressTest::pingsStayWithinTheBar() {
    QFETCH(qint32, total);
    QFETCH(QList<qint32>, pings);
    QFETCH(qint32, value);
    ProgressBench bench(InterrogationType::kRead);
    bench.run(kReadRadio, [&] {
        bench.start(7, "Reading Radio");
        bench.ping(6);
        const qint32 before = bench.bar().value();
        bench.start(total, "Reading Radio");
        for (const qint32 increment : pings)
            bench.ping(increment, "block");
        QCOMPARE(bench.bar().isHidden(), value < 0);
        QCOMPARE(bench.bar().value(), value < 0 ? before : value);
        QCOMPARE(bench.text("lblItemName"), QStringLiteral("block"));
    });
    QCOMPARE(bench.operations, 1);
}

void DocumentsProgressTest::emptyTextsLeaveTheLabels() {
    ProgressBench bench(InterrogationType::kRead);
    bench.services.translate({QStringLiteral("Reading|Lecture")});
    bench.run(kReadRadio, [&] {
        bench.start(10, "Reading Radio");
        bench.ping(1, "Reading", "10 %");
        bench.ping(1, "  ", "");
        QCOMPARE(bench.text("lblItemName"), QStringLiteral("Lecture"));
        QCOMPARE(bench.text("lblPercentage"), QStringLiteral("10 %"));
        bench.ping(1, "", "20 %");
        QCOMPARE(bench.text("lblItemName"), QStringLiteral("Lecture"));
        QCOMPARE(bench.text("lblPercentage"), QStringLiteral("20 %"));
    });
    QCOMPARE(bench.operations, 1);
}

void DocumentsProgressTest::endOfAnInterrogation_data() {
    QTest::addColumn<bool>("forceClose");
    QTest::newRow("the details stay to be read") << false;
    QTest::newRow("a forced close hides the window") << true;
}

void DocumentsProgressTest::endOfAnInterrogation() {
    QFETCH(bool, forceClose);
    ProgressBench bench(InterrogationType::kInterrogate);
    bench.run(kInterrogateRadio, [&] {
        bench.start(5, "Radio Interrogation");
        bench.ping(5, "Asking", "100 %");
        bench.end(forceClose);
    });
    QCOMPARE(bench.window.isVisible(), !forceClose);
    QCOMPARE(bench.buttons(), QStringLiteral("OK (Cancel)"));
    QCOMPARE(bench.text("lblItemName") + bench.text("lblPercentage"), QString());
    if (!forceClose) {
        bench.button("cmdOK").click();
        QVERIFY(!bench.window.isVisible());
    }
}

void DocumentsProgressTest::endOfAnotherPhaseHides() {
    ProgressBench bench(InterrogationType::kRead);
    bench.run(kReadRadio, [&] {
        bench.start(5, "Radio Interrogation");
        bench.end(true);
        QVERIFY(!bench.window.isVisible());
        bench.start(5, "Reading Radio");
        QVERIFY2(bench.window.isVisible(), "the second phase runs unseen");
        bench.end(false);
    });
    QVERIFY(!bench.window.isVisible());
}

void DocumentsProgressTest::detailsArePlainText() {
    ProgressBench bench(InterrogationType::kInterrogate);
    bench.component.raiseProgress([](ProgressEvents &events) {
        events.mobjTransformerEvents_RadioInfo(QStringLiteral("<b>tier</b>"), QStringLiteral("software"),
                                               QStringLiteral("database"), QStringLiteral("hardware"),
                                               QStringLiteral("product"));
    });
    const std::pair<const char *, const char *> expected[] = {
        {"lblPort", "COM1: <Bench>"}, {"lblRadioTier", "<b>tier</b>"}, {"lblSWVersion", "software"},
        {"lblDBVersion", "database"}, {"lblHardwareRev", "hardware"},  {"lblProductCode", "product"},
    };
    for (const auto &[name, text] : expected) {
        const auto *label = bench.window.findChild<QLabel *>(QString::fromLatin1(name));
        QCOMPARE(label->text(), QString::fromLatin1(text));
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY2(!label->accessibleName().isEmpty(), name);
        QCOMPARE(label->accessibleDescription(), label->text());
    }
}

void DocumentsProgressTest::closingAsksForAnAbort_data() {
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<bool>("ended");
    QTest::addColumn<qsizetype>("aborts");
    QTest::addColumn<bool>("staysOpen");
    for (const bool byKey : {false, true}) {
        const QByteArray how = byKey ? "Escape " : "frame ";
        const auto row = [&](const char *fault, const char *title, bool ended, qsizetype aborts, bool staysOpen) {
            QTest::newRow((how + fault).constData())
                << QString::fromLatin1(title) << byKey << ended << aborts << staysOpen;
        };
        row("cancels a read, which then ends by itself", "Reading Radio", false, 1, true);
        row("cancels an interrogation", "Radio Interrogation", false, 1, true);
        row("is refused while programming", "Programming Radio", false, 0, true);
        row("closes the details", "Radio Interrogation", true, 0, false);
    }
}

void DocumentsProgressTest::closingAsksForAnAbort() {
    QFETCH(QString, title);
    QFETCH(bool, byKey);
    QFETCH(bool, ended);
    QFETCH(qsizetype, aborts);
    QFETCH(bool, staysOpen);
    ProgressBench bench(InterrogationType::kInterrogate);
    bool open = false;
    bench.run(kInterrogateRadio, [&] {
        bench.start(5, title.toLatin1().constData());
        if (ended)
            bench.end(false);
        if (byKey)
            bench.escape();
        else
            bench.window.close();
        open = bench.window.isVisible();
    });
    QCOMPARE(bench.operations, 1);
    QCOMPARE(bench.aborts(), aborts);
    QCOMPARE(open, staysOpen);
}

void DocumentsProgressTest::enterDoesNotAbort() {
    ProgressBench bench(InterrogationType::kRead);
    bench.run(kReadRadio, [&] {
        bench.start(5, "Reading Radio");
        QTest::keyClick(bench.window.windowHandle(), Qt::Key_Return);
        QCOMPARE(bench.aborts(), 0);
        QTest::keyClick(bench.window.windowHandle(), Qt::Key_Space); // on the cancel button, which has the focus
        QCOMPARE(bench.aborts(), 1);
    });
    QCOMPARE(bench.operations, 1);
}

// One that nothing could close.
void DocumentsProgressTest::noWindowIsLeftBehind_data() {
    QTest::addColumn<bool>("ends");
    QTest::addColumn<bool>("raises");
    QTest::addColumn<bool>("loadFailed");
    QTest::newRow("by an operation that never ends its phase") << false << false << false;
    QTest::newRow("by an error") << false << true << false;
    QTest::newRow("by a component that failed to load") << true << false << true;
}

void DocumentsProgressTest::noWindowIsLeftBehind() {
    QFETCH(bool, ends);
    QFETCH(bool, raises);
    QFETCH(bool, loadFailed);
    ProgressBench bench(InterrogationType::kInterrogate);
    bench.component.when(QStringLiteral("GetLoadFailed")).answers(loadFailed);
    if (raises)
        bench.services.errorSink.expectReport();
    bench.run(kInterrogateRadio, [&] {
        bench.start(5, "Radio Interrogation");
        if (ends)
            bench.end(false);
        if (raises)
            throw RunTimeError(ErrorNumber::kBadArgument, QString(), QStringLiteral("broken"));
    });
    QCOMPARE(bench.operations, 1);
    QCOMPARE(bench.services.errorSink.reports().size(), raises ? 1 : 0);
    QVERIFY(!bench.window.isVisible());
}

void DocumentsProgressTest::theWindowKeepsItsSize() {
    ProgressBench bench(InterrogationType::kProgram);
    QList<QSize> sizes;
    QList<QPoint> cancelPlaces;
    bench.run(kProgramRadio, [&] {
        for (const char *title : {"Radio Interrogation", "Reading Radio", "Programming Radio", ""}) {
            for (const qint32 total : {0, 10}) {
                bench.start(total, title);
                bench.ping(1, total == 0 ? "short"
                                         : "a text that needs the width of two whole lines, because it says "
                                           "which block of the content is written to which bank of the radio");
                QCoreApplication::processEvents();
                sizes << bench.window.size();
                cancelPlaces << bench.button("cmdCancel").pos();
            }
        }
    });
    QCOMPARE(sizes.size(), 8);
    QCOMPARE(sizes.count(sizes.first()), 8);
    QCOMPARE(cancelPlaces.count(cancelPlaces.first()), 8);
}

QTEST_MAIN(DocumentsProgressTest)
#include "documents_progress_test.moc"
