#include "port_access.h"
#include "pseudo_terminal.h"
#include "rows.h"
#include "serial_ports.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class PortsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { QVERIFY(mClass.isValid()); }
    void phantomPortsAreLeftOutAndNumbersAscend() {
        addTty(u"ttyACM1"_s, {});
        addTty(u"ttyUSB0"_s, {});
        addTty(u"ttyUSB10"_s, {});
        addTty(u"ttyS0"_s, "4\n");
        addTty(u"ttyS1"_s, "0\n"); // no chip
        addTty(u"ttyS2"_s, {});    // no type file
        addTty(u"ttyS10"_s, "16\n");
        addTty(u"ttySAC0"_s, "4\n"); // another family
        addTty(u"ttyUSB"_s, {});
        addTty(u"ttyUSB007"_s, {}); // would collide with ttyUSB7
        addTty(u"tty1"_s, {});
        const SerialPorts ports(mClass.path(), u"/dev"_s, QString());
        QCOMPARE(ports.GetAvailableComPorts(), u"|1:|11:|101:|111:|202:|"_s);
        QCOMPARE(ports.List().back().device, u"/dev/ttyACM1"_s);
        QCOMPARE(SerialPorts(u"/nowhere"_s, u"/dev"_s, QString()).GetAvailableComPorts(), u"|"_s);
    }

    // The texts stand above the interface, which "device" names.
    void anAdapterIsNamedByMakerAndProduct() {
        const QDir machine(mClass.path());
        QVERIFY(machine.mkpath(u"usb/1-1/interface/ttyUSB3"_s) && machine.mkpath(u"ttyUSB3"_s));
        for (const auto &[name, text] : {std::pair("manufacturer", "Maker \n"), std::pair("product", "Adapter\n")}) {
            QFile file(machine.filePath(u"usb/1-1/"_s + QString::fromLatin1(name)));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
        }
        QVERIFY(QFile::link(machine.filePath(u"usb/1-1/interface/ttyUSB3"_s), machine.filePath(u"ttyUSB3/device"_s)));
        for (const SerialPortEntry &entry : SerialPorts(mClass.path(), u"/dev"_s, QString()).List())
            QCOMPARE(entry.name, entry.number == 104 ? u"Maker Adapter"_s : QString());
    }

    void replacementListTakesOnlyWholeParts() {
        for (const auto &[text, bars, firstDevice, firstName] : Rows<QString, QString, QString, QString>{
                 {"named", u"1=/x/radio=Simulated radio"_s, u"|1:|"_s, u"/x/radio"_s, u"Simulated radio"_s},
                 {"name with =", u"7=/x=a=b"_s, u"|7:|"_s, u"/x"_s, u"a=b"_s},
                 {"sorted by number, not by place", u"12=/b|2=/a"_s, u"|2:|12:|"_s, u"/a"_s, u""_s},
                 {"faulty parts passed over", u"0=/z|x=/y|3|4=|5=/ok"_s, u"|5:|"_s, u"/ok"_s, u""_s},
             }) {
            addTty(u"ttyUSB0"_s, {});
            const SerialPorts ports(mClass.path(), u"/dev"_s, text);
            QCOMPARE(ports.GetAvailableComPorts(), bars);
            QCOMPARE(ports.List().front().device, firstDevice);
            QCOMPARE(ports.List().front().name, firstName);
            QVERIFY2(!ports.DeviceOf(u"COM101"_s), "the machine's ports must not shine through");
        }
    }

    void portTextsFindTheirDevice() {
        for (const auto &[text, device] : Rows<QString, QString>{
                 {"number", u"1"_s, u"/dev/ttyS0"_s},
                 {"COM name, any case", u"com102"_s, u"/dev/ttyUSB1"_s},
                 {"with colon", u"COM201:"_s, u"/dev/ttyACM0"_s},
                 {"last ttyS number", u"COM100"_s, u"/dev/ttyS99"_s},
                 {"path", u"/dev/ttyS7"_s, u"/dev/ttyS7"_s},
                 {"relative path", u"./radio"_s, u"./radio"_s},
                 {"zero", u"COM0"_s, {}},
                 {"empty", {}, {}},
                 {"word", u"COMX"_s, {}},
                 {"sign", u"COM-1"_s, {}},
                 {"overflow", u"COM99999999999"_s, {}},
             }) {
            const SerialPorts ports(u"/nowhere"_s, u"/dev"_s, QString());
            QCOMPARE(ports.DeviceOf(text).value_or(QString()), device);
        }
    }

    void aLockedPortIsBusyAndFreeAgainAfterwards() {
        const PseudoTerminal pty;
        const SerialPorts ports(mClass.path(), u"/dev"_s, u"9="_s + pty.device);
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

    void holderOfAPortIsFound() {
        const PseudoTerminal pty;
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

    void whatIsNoPortIsNotAvailable() {
        QCOMPARE(PortAccess::probe(u"/dev/no-such-port"_s), PortState::Missing);
        QCOMPARE(PortAccess::probe(u"/dev/null"_s), PortState::NotWorking); // no terminal
    }

  private:
    void addTty(const QString &name, const QByteArray &type) const {
        QVERIFY(QDir(mClass.path()).mkpath(name));
        if (type.isEmpty())
            return;
        QFile file(mClass.filePath(name + u"/type"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(type);
    }

    QTemporaryDir mClass;
};

QTEST_GUILESS_MAIN(PortsTest)
#include "ports_test.moc"
