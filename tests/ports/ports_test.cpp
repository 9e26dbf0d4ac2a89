#include "port_access.h"
#include "serial_ports.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
// A pseudo-terminal; its far end is a port that can be opened.
struct Pty {
    Pty() : master(::posix_openpt(O_RDWR | O_NOCTTY)) {
        ::grantpt(master);
        ::unlockpt(master);
        device = QString::fromLocal8Bit(::ptsname(master));
    }
    ~Pty() { ::close(master); }
    Pty(const Pty &) = delete;
    Pty &operator=(const Pty &) = delete;

    int master;
    QString device;
};
} // namespace

class PortsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { QVERIFY(mClass.isValid()); }
    void phantomPortsAreLeftOutAndNumbersAscend();
    void anAdapterIsNamedByMakerAndProduct();
    void replacementListTakesOnlyWholeParts_data();
    void replacementListTakesOnlyWholeParts();
    void portTextsFindTheirDevice_data();
    void portTextsFindTheirDevice();
    void aLockedPortIsBusyAndFreeAgainAfterwards();
    void holderOfAPortIsFound();
    void whatIsNoPortIsNotAvailable_data();
    void whatIsNoPortIsNotAvailable();

  private:
    void addTty(const QString &name, const QByteArray &type) const {
        QVERIFY(QDir(mClass.path()).mkpath(name));
        if (type.isEmpty())
            return;
        QFile file(mClass.filePath(name + QStringLiteral("/type")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(type);
    }

    QTemporaryDir mClass;
};

void PortsTest::phantomPortsAreLeftOutAndNumbersAscend() {
    addTty(QStringLiteral("ttyACM1"), {});
    addTty(QStringLiteral("ttyUSB0"), {});
    addTty(QStringLiteral("ttyUSB10"), {});
    addTty(QStringLiteral("ttyS0"), "4\n");
    addTty(QStringLiteral("ttyS1"), "0\n"); // no chip
    addTty(QStringLiteral("ttyS2"), {});    // no type file
    addTty(QStringLiteral("ttyS10"), "16\n");
    addTty(QStringLiteral("ttySAC0"), "4\n"); // another family
    addTty(QStringLiteral("ttyUSB"), {});
    addTty(QStringLiteral("ttyUSB007"), {}); // would collide with ttyUSB7
    addTty(QStringLiteral("tty1"), {});
    const SerialPorts ports(mClass.path(), QStringLiteral("/dev"), QString());
    QCOMPARE(ports.GetAvailableComPorts(), QStringLiteral("|1:|11:|101:|111:|202:|"));
    QCOMPARE(ports.List().back().device, QStringLiteral("/dev/ttyACM1"));
    QCOMPARE(SerialPorts(QStringLiteral("/nowhere"), QStringLiteral("/dev"), QString()).GetAvailableComPorts(),
             QStringLiteral("|"));
}

// The texts stand above the interface, which "device" names.
void PortsTest::anAdapterIsNamedByMakerAndProduct() {
    const QDir machine(mClass.path());
    QVERIFY(machine.mkpath(QStringLiteral("usb/1-1/interface/ttyUSB3")) && machine.mkpath(QStringLiteral("ttyUSB3")));
    for (const auto &[name, text] : {std::pair("manufacturer", "Maker \n"), std::pair("product", "Adapter\n")}) {
        QFile file(machine.filePath(QStringLiteral("usb/1-1/") + QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
    }
    QVERIFY(QFile::link(machine.filePath(QStringLiteral("usb/1-1/interface/ttyUSB3")),
                        machine.filePath(QStringLiteral("ttyUSB3/device"))));
    for (const SerialPortEntry &entry : SerialPorts(mClass.path(), QStringLiteral("/dev"), QString()).List())
        QCOMPARE(entry.name, entry.number == 104 ? QStringLiteral("Maker Adapter") : QString());
}

void PortsTest::replacementListTakesOnlyWholeParts_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("bars");
    QTest::addColumn<QString>("firstDevice");
    QTest::addColumn<QString>("firstName");
    const auto row = [](const char *name, const char *first, const char *second, const char *third,
                        const char *fourth) { QTest::newRow(name) << first << second << third << fourth; };
    row("named", "1=/x/radio=Simulated radio", "|1:|", "/x/radio", "Simulated radio");
    row("name with =", "7=/x=a=b", "|7:|", "/x", "a=b");
    row("sorted by number, not by place", "12=/b|2=/a", "|2:|12:|", "/a", "");
    row("faulty parts passed over", "0=/z|x=/y|3|4=|5=/ok", "|5:|", "/ok", "");
}

void PortsTest::replacementListTakesOnlyWholeParts() {
    QFETCH(QString, text);
    addTty(QStringLiteral("ttyUSB0"), {});
    const SerialPorts ports(mClass.path(), QStringLiteral("/dev"), text);
    QTEST(ports.GetAvailableComPorts(), "bars");
    QTEST(ports.List().front().device, "firstDevice");
    QTEST(ports.List().front().name, "firstName");
    QVERIFY2(!ports.DeviceOf(QStringLiteral("COM101")), "the machine's ports must not shine through");
}

void PortsTest::portTextsFindTheirDevice_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("device"); // "" : refused
    const auto row = [](const char *name, const char *first, const char *second) {
        QTest::newRow(name) << first << second;
    };
    row("number", "1", "/dev/ttyS0");
    row("COM name, any case", "com102", "/dev/ttyUSB1");
    row("with colon", "COM201:", "/dev/ttyACM0");
    row("last ttyS number", "COM100", "/dev/ttyS99");
    row("path", "/dev/ttyS7", "/dev/ttyS7");
    row("relative path", "./radio", "./radio");
    row("zero", "COM0", "");
    row("empty", "", "");
    row("word", "COMX", "");
    row("sign", "COM-1", "");
    row("overflow", "COM99999999999", "");
}

void PortsTest::portTextsFindTheirDevice() {
    QFETCH(QString, text);
    const SerialPorts ports(QStringLiteral("/nowhere"), QStringLiteral("/dev"), QString());
    QTEST(ports.DeviceOf(text).value_or(QString()), "device");
}

void PortsTest::aLockedPortIsBusyAndFreeAgainAfterwards() {
    const Pty pty;
    const SerialPorts ports(mClass.path(), QStringLiteral("/dev"), QStringLiteral("9=") + pty.device);
    QVERIFY(ports.IsComPortAvailable(9));
    PortLock lock;
    QVERIFY(lock.take(pty.device));
    QCOMPARE(PortAccess::probe(pty.device), PortState::Busy);
    QVERIFY(!ports.IsComPortAvailable(9));
    PortLock second;
    QVERIFY(!second.take(pty.device));
    lock.release();
    QCOMPARE(PortAccess::probe(pty.device), PortState::Available);
    QVERIFY(ports.IsComPortAvailable(9));
}

void PortsTest::holderOfAPortIsFound() {
    const Pty pty;
    int ready[2];
    QCOMPARE(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const int held = ::open(pty.device.toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
        const char mark = held < 0 ? 'n' : 'y';
        if (::write(ready[1], &mark, 1) != 1)
            ::_exit(1);
        ::pause();
        ::_exit(0);
    }
    char mark = 0;
    QCOMPARE(::read(ready[0], &mark, 1), ssize_t(1));
    const QStringList holders = PortAccess::holders(pty.device);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    QCOMPARE(mark, 'y');
    QCOMPARE(holders.size(), 1);
    QVERIFY2(holders.front().contains(QString::number(child)), qPrintable(holders.front()));
}

void PortsTest::whatIsNoPortIsNotAvailable_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("state");
    QTest::newRow("missing") << "/dev/no-such-port" << int(PortState::Missing);
    QTest::newRow("not a terminal") << "/dev/null" << int(PortState::NotWorking);
}

void PortsTest::whatIsNoPortIsNotAvailable() {
    QFETCH(QString, device);
    QTEST(int(PortAccess::probe(device)), "state");
}

QTEST_GUILESS_MAIN(PortsTest)
#include "ports_test.moc"
