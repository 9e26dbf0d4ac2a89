#include "frm_preferences.h"
#include "preferences_ports.h"
#include "preferences_values.h"
#include "product_identity.h"
#include "serial_ports.h"
#include "shell_fixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {
const QString kNoPorts =
    QStringLiteral("There appears to be no available COM ports on your Computer.%0:S You will be unable to Read or "
                   "Program Radios.");
const QString kNotSupported =
    QStringLiteral("You can not choose this language because your operating system does not support it.");
const QString kRestart = QStringLiteral("You will need to restart the application for the changes to take affect.");

// The window on a double of the component with three ports, of which none can be opened.
struct Bench {
    explicit Bench(const QString &ports = QStringLiteral("1=/nowhere/a=Depot|3=/nowhere/c|101=/nowhere/usb"))
        : list(QString(), QString(), ports),
          window({component, services.translation, services.boxes, services.errors, list}, nullptr) {
        qputenv("KX4600_ACP", "1252");
    }
    ~Bench() { qunsetenv("KX4600_ACP"); }
    void store(const char *key, const QVariant &value) {
        component.when(QStringLiteral("GetSetting"), QString::fromLatin1(key)).answers(value);
    }
    void open() {
        window.Form_Load();
        window.show();
        static_cast<void>(log.take());
    }
    template <class Part>
    [[nodiscard]] Part &part(const char *name) const {
        auto *found = window.findChild<Part *>(QString::fromLatin1(name));
        if (found == nullptr)
            qFatal("no %s", name);
        return *found;
    }
    void click(const char *name) const { part<QAbstractButton>(name).click(); }
    [[nodiscard]] QComboBox &ports() const { return part<QComboBox>("cboComPort"); }
    [[nodiscard]] QComboBox &languages() const { return part<QComboBox>("cboLanguage"); }

    CallLog log;
    RecordingTransformer component{log};
    TestServices services{&component};
    SerialPorts list;
    frmPreferences window;
};

QStringList saved(std::initializer_list<const char *> settings) {
    QStringList result;
    for (const char *setting : settings)
        result << QStringLiteral("SaveSetting(%1)").arg(QString::fromLatin1(setting));
    return result;
}

QString accessKeyOf(const QString &text) { return QKeySequence::mnemonic(text).toString(); }
} // namespace

class PreferencesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void damagedSettingsCountAsTheirDefaults_data();
    void damagedSettingsCountAsTheirDefaults();
    void portsAreMarkedUnlessStoredOrFree();
    void storedPortIsShown_data();
    void storedPortIsShown();
    void machineWithoutPortsIsToldEachTime();
    void okStoresEverythingInOrder();
    void cancelStoresNothing_data();
    void cancelStoresNothing();
    void languageMustBeSupported_data();
    void languageMustBeSupported();
    void everythingIsReachedByKeys();
    void commandNeedsAFormThatCanBeSaved();
    void changedSettingsShowAtOnce_data();
    void changedSettingsShowAtOnce();
};

void PreferencesTest::damagedSettingsCountAsTheirDefaults_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("alignmentStartAccessLanguage"); // one digit each
    QTest::newRow("nothing stored") << ""
                                    << "" << 1001;
    QTest::newRow("alignment of an older program") << "TextAlignment"
                                                   << "-1" << 1001;
    QTest::newRow("left") << "TextAlignment"
                          << "0" << 1;
    QTest::newRow("any other start is the saved place") << "StartupPosition"
                                                        << "7" << 1201;
    QTest::newRow("last level") << "AccessLevel"
                                << "4" << 1041;
    QTest::newRow("level out of range") << "AccessLevel"
                                        << "9" << 1001;
    QTest::newRow("language out of range") << "Language"
                                           << "0" << 1001;
    QTest::newRow("no number") << "Language"
                               << "French" << 1001;
}

void PreferencesTest::damagedSettingsCountAsTheirDefaults() {
    QFETCH(QString, key);
    QFETCH(QString, stored);
    Bench bench;
    if (!key.isEmpty())
        bench.store(qPrintable(key), stored);
    const PreferencesValues values = PreferencesValues::load(bench.component);
    QTEST(values.TextAlignment * 1000 + values.StartupPosition * 100 + values.AccessLevel * 10 + values.Language,
          "alignmentStartAccessLanguage");
    QCOMPARE(values.Website, ProductIdentity::homePage());
}

void PreferencesTest::portsAreMarkedUnlessStoredOrFree() {
    Bench bench;
    bench.services.translate({QStringLiteral("%0:S (unavailable)|%0:S (indisponible)")});
    QStringList texts;
    for (const PreferencesPort &port : PreferencesPorts::list(bench.list, bench.services.translation, 3))
        texts << port.text + QStringLiteral(" at ") + port.tip;
    QCOMPARE(texts, (QStringList{QStringLiteral("COM1: (indisponible) at Depot (/nowhere/a)"),
                                 QStringLiteral("COM3: at /nowhere/c"),
                                 QStringLiteral("COM101: (indisponible) at /nowhere/usb")}));
}

void PreferencesTest::storedPortIsShown_data() {
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("kept");
    QTest::newRow("listed") << 3 << 1 << "CommPortNumber, 3";
    QTest::newRow("unplugged") << 102 << -1 << "CommPortNumber, 102";
}

void PreferencesTest::storedPortIsShown() {
    QFETCH(int, stored);
    QFETCH(QString, kept);
    Bench bench;
    bench.store("CommPortNumber", stored);
    bench.open();
    QTEST(bench.ports().currentIndex(), "index");
    bench.click("OKButton");
    QVERIFY(bench.log.take().contains(QStringLiteral("SaveSetting(%1)").arg(kept)));
}

void PreferencesTest::machineWithoutPortsIsToldEachTime() {
    Bench bench{QStringLiteral("|")};
    bench.store("CommPortNumber", 5);
    bench.services.boxes.expect(kNoPorts, 1);
    bench.open();
    QVERIFY(bench.services.boxes.shown().constFirst().startsWith(
        QStringLiteral("KX4600 Programming Application\r\nError No Com Ports")));
    QCOMPARE(bench.ports().currentText(), QStringLiteral("No COM Ports"));
    QVERIFY(!bench.ports().isEnabled());
    bench.click("OKButton");
    QVERIFY(bench.log.take().contains(QStringLiteral("SaveSetting(CommPortNumber, 5)")));
}

void PreferencesTest::okStoresEverythingInOrder() {
    Bench bench;
    bench.store("Website", QStringLiteral("https://dealer.example"));
    bench.open();
    QCOMPARE(bench.part<QLineEdit>("txtVornHome").text(), QStringLiteral("https://dealer.example"));
    bench.ports().setCurrentIndex(2);
    bench.click("cmdDefaultAddress");
    bench.click("optTextAlignment(0)");
    bench.click("chkDialog");
    bench.click("optStartupPosition(2)");
    bench.part<QRadioButton>("optAccessLevel(4)").toggle(); // as an assistive tool does
    bench.click("OKButton");
    QCOMPARE(bench.log.take(),
             saved({"CommPortNumber, 101", "Website, https://www.example.com/kx4600", "TextAlignment, 0",
                    "GeneralDialogs, 0", "StartupPosition, 2", "AccessLevel, 4"}));
    QVERIFY(bench.window.isHidden());
    QCOMPARE(bench.window.result(), int(QDialog::Accepted));
}

void PreferencesTest::cancelStoresNothing_data() {
    QTest::addColumn<QString>("way");
    for (const char *way : {"button", "Escape", "close box"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void PreferencesTest::cancelStoresNothing() {
    QFETCH(QString, way);
    Bench bench;
    bench.open();
    bench.languages().setCurrentIndex(1);
    bench.click("optTextAlignment(0)");
    if (way == u"button")
        bench.click("cmdCancel");
    else if (way == u"Escape")
        QTest::keyClick(&bench.window, Qt::Key_Escape);
    else
        bench.window.close();
    QVERIFY(bench.window.isHidden());
    QCOMPARE(bench.log.take(), QStringList());
}

void PreferencesTest::languageMustBeSupported_data() {
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("taken");
    QTest::newRow("French on 1252") << QByteArray("1252") << 1 << true;
    QTest::newRow("Chinese on 1252") << QByteArray("1252") << 2 << false;
    QTest::newRow("Spanish on 1252") << QByteArray("1252") << 3 << true;
    QTest::newRow("French on 936") << QByteArray("936") << 1 << false;
    QTest::newRow("Chinese on 936") << QByteArray("936") << 2 << true;
    QTest::newRow("Chinese on UTF-8") << QByteArray("65001") << 2 << true;
}

void PreferencesTest::languageMustBeSupported() {
    QFETCH(QByteArray, codePage);
    QFETCH(int, index);
    QFETCH(bool, taken);
    Bench bench;
    qputenv("KX4600_ACP", codePage);
    bench.open();
    bench.languages().setCurrentIndex(index);
    bench.services.boxes.expect(taken ? kRestart : kNotSupported, 1);
    bench.click("OKButton");
    QCOMPARE(bench.window.isHidden(), taken);
    QCOMPARE(bench.languages().currentIndex(), taken ? index : 0);
    const QStringList calls = bench.log.take();
    QCOMPARE(calls.size(), taken ? 7 : 0);
    if (taken)
        QCOMPARE(calls.constLast(), QStringLiteral("SaveSetting(Language, %1)").arg(index + 1));
}

void PreferencesTest::everythingIsReachedByKeys() {
    Bench bench;
    bench.open();
    QApplication::setActiveWindow(&bench.window);
    QVERIFY(QTest::qWaitForWindowActive(&bench.window));
    QStringList reached;
    QWidget *first = bench.window.focusWidget();
    QWidget *at = first;
    do {
        reached << at->objectName();
        QVERIFY2(!at->accessibleName().isEmpty() || qobject_cast<QAbstractButton *>(at) != nullptr,
                 qPrintable(at->objectName()));
        QTest::keyClick(at, Qt::Key_Tab);
        at = bench.window.focusWidget();
    } while (at != first && reached.size() < 20);
    QCOMPARE(reached, (QStringList{QStringLiteral("cboComPort"), QStringLiteral("cboLanguage"),
                                   QStringLiteral("optTextAlignment(1)"), QStringLiteral("optStartupPosition(0)"),
                                   QStringLiteral("optAccessLevel(0)"), QStringLiteral("chkDialog"),
                                   QStringLiteral("txtVornHome"), QStringLiteral("cmdDefaultAddress"),
                                   QStringLiteral("OKButton"), QStringLiteral("cmdCancel")}));
    QSet<QString> keys;
    QStringList texts;
    for (const QAbstractButton *button : bench.window.findChildren<QAbstractButton *>())
        texts << button->text();
    for (const QLabel *label : bench.window.findChildren<QLabel *>())
        texts << label->text();
    for (const QString &text : texts) {
        QVERIFY2(!accessKeyOf(text).isEmpty() && !keys.contains(accessKeyOf(text)), qPrintable(text));
        keys << accessKeyOf(text);
    }
}

void PreferencesTest::commandNeedsAFormThatCanBeSaved() {
    ShellFixture shell;
    shell.load();
    shell.forms.enabler->okToLeave = false;
    shell.find<QAction>(QStringLiteral("mnuOptions"))->trigger(); // a window would never return
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(!shell.log.take().contains(QStringLiteral("GetSetting(CommPortNumber, 1)")));
}

void PreferencesTest::changedSettingsShowAtOnce_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("call");
    QTest::addColumn<bool>("formRebuilt");
    QTest::newRow("nothing") << "AccessLevel" << 0 << "SetAccessLevel(80)" << false;
    QTest::newRow("alignment") << "TextAlignment" << 0 << "SetAccessLevel(80)" << true;
    QTest::newRow("level") << "AccessLevel" << 2 << "SetAccessLevel(40)" << false;
    QTest::newRow("level last used") << "AccessLevel" << 4 << "SetAccessLevel(60)" << false;
    QTest::newRow("language") << "Language" << 2 << "ChangeTier(A)" << true;
}

void PreferencesTest::changedSettingsShowAtOnce() {
    QFETCH(QString, key);
    QFETCH(int, value);
    QFETCH(QString, call);
    QFETCH(bool, formRebuilt);
    qputenv("KX4600_PORTS", "1=/nowhere/a");
    qputenv("KX4600_ACP", "1252");
    ShellFixture shell;
    shell.transformer.when(QStringLiteral("GetSetting"), QStringLiteral("PreviousAccessLevel")).answers(1);
    shell.load();
    QTimer::singleShot(0, shell.window.get(), [&] {
        auto *window = qobject_cast<frmPreferences *>(QApplication::activeModalWidget());
        QVERIFY(window != nullptr);
        // What OK would have stored; the double keeps nothing.
        shell.transformer.when(QStringLiteral("GetSetting"), key).answers(value);
        window->close();
    });
    shell.find<QAction>(QStringLiteral("mnuOptions"))->trigger();
    const QStringList calls = shell.log.take();
    QVERIFY2(calls.contains(call), qPrintable(calls.join(u'\n')));
    QCOMPARE(!calls.filter(QStringLiteral("CreateForm(")).isEmpty(), formRebuilt);
    QCOMPARE(shell.window->TextAlignment(), key == u"TextAlignment" ? value : 1);
    QCOMPARE(shell.services.translation.gLanguage, key == u"Language" ? value : 1);
    qunsetenv("KX4600_PORTS");
    qunsetenv("KX4600_ACP");
}

QTEST_MAIN(PreferencesTest)
#include "preferences_test.moc"
