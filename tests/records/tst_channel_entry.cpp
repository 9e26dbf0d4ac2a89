#include "program_bench.h"
#include "tdb_grid.h"
#include "transformer.h"
#include "window_input.h"

#include <QProcess>
#include <QPushButton>
#include <QTest>

namespace {
constexpr int kChannels = 60;
constexpr int kMostKeys = 6; // a channel, beyond the digits
const auto kGrid = QStringLiteral("fldChannelsKX4600");
const auto kGuide = QStringLiteral("ChannelID_q7r");

// One column as a user fills it: what is typed for a channel, counted from 1, and what the file then holds.
struct Column {
    qint32 column;
    QString uiid;
    QString (*typed)(int channel);
    QString (*stored)(int channel);
};

QString rx(int channel) { return QString::number(150 + 0.0125 * channel, 'f', 4); }
QString tx(int channel) { return QString::number(154.6 + 0.0125 * channel, 'f', 4); }
QString tone(int channel) { return channel % 2 == 0 ? QStringLiteral("100.0") : QStringLiteral("88.5"); }
QString network(int channel) { return QString::number(channel % 3 + 1); }
QString sixDecimals(const QString &number) { return QString::number(number.toDouble(), 'f', 6); }

const Column kColumns[] = {
    {1, QStringLiteral("RxFreq_q7r"), rx, [](int channel) { return sixDecimals(rx(channel)); }},
    {2, QStringLiteral("TxFreq_q7r"), tx, [](int channel) { return sixDecimals(tx(channel)); }},
    {3, QStringLiteral("RxSignalling_q7r"), tone, [](int channel) { return tone(channel) + QStringLiteral(" Hz"); }},
    {6, QStringLiteral("ChannelNetworkId_q7r"), network, network},
};

// The program on new data with three networks; counts the keys that are no digits.
class Desk : public ProgramBench {
  public:
    Desk() {
        chooseTier(QStringLiteral("Advanced"));
        for (int network = 2; network <= 3; ++network) {
            qint32 record = network;
            bool added = false;
            component().AddRecord(QStringLiteral("NetworkID"), QStringLiteral("Network"), record, added);
            QVERIFY(added);
        }
        QVERIFY(openForm(QStringLiteral("Channels")));
    }
    [[nodiscard]] TDBGrid &table() const { return part<TDBGrid>(kGrid, "TDBGrid1"); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        WindowInput::key(key, modifiers);
        ++keys;
    }
    void type(const QString &digits) { WindowInput::type(digits); }

    int keys = 0;
};

// Each value of a column as the command line reads it from the file, in the order of the channels.
QStringList valuesInFile(const QString &file, const QString &uiid) {
    QStringList words{QStringLiteral("get"), file};
    for (int channel = 1; channel <= kChannels; ++channel)
        words << QStringLiteral("%1(%2)").arg(uiid).arg(channel);
    QProcess process;
    process.start(qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4600ctl"), words);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}
} // namespace

// A dealer's afternoon: many channels by the keyboard alone, down to what stands in the file.
class tst_channel_entry final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void sixtyChannelsTakeFewKeys();
};

void tst_channel_entry::sixtyChannelsTakeFewKeys() {
    Desk desk;
    WindowInput::clickAt(*desk.table().viewport(), desk.table().visualRect(desk.table().model()->index(0, 0)).center());
    for (int channel = 2; channel <= kChannels; ++channel) {
        desk.press(Qt::Key_A, Qt::AltModifier); // its key holds a button down for a moment
        QTRY_COMPARE(desk.component().GetNumberOfRecords(kGuide), channel);
    }
    QVERIFY(desk.table().hasFocus());
    for (const Column &column : kColumns) {
        desk.press(Qt::Key_Home, Qt::ControlModifier);
        while (desk.table().Col() < column.column)
            desk.press(Qt::Key_Right);
        for (int channel = 1; channel <= kChannels; ++channel) {
            desk.type(column.typed(channel));
            desk.press(Qt::Key_Return);
        }
    }
    qInfo("%d keys beyond the digits for %d channels", desk.keys, kChannels);
    QVERIFY2(desk.keys <= kMostKeys * kChannels, qPrintable(QString::number(desk.keys)));

    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("channels.k4p"));
    bool saved = false;
    desk.component().SaveFile(file, QString(), 0, saved);
    QVERIFY(saved);
    for (const Column &column : kColumns) {
        QStringList expected;
        for (int channel = 1; channel <= kChannels; ++channel)
            expected << column.stored(channel);
        QCOMPARE(valuesInFile(file, column.uiid), expected);
    }
}

QTEST_MAIN(tst_channel_entry)
#include "tst_channel_entry.moc"
