#include "component_listener.h"
#include "component_state.h"
#include "value_text.h"

#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

// Rows of text pasted on the grid of channels: which record and column each cell goes to, and what is told of the rest.
class tst_import : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();
    void rowsGoToTheirRecordsAndColumns_data();
    void rowsGoToTheirRecordsAndColumns();
    void refusedCellsAreToldByRowAndColumn_data();
    void refusedCellsAreToldByRowAndColumn();
    void exchangedIdentitiesTakeTheirReferencesAlong();
    void whatASettingDecidesAboutWaitsForIt();
    void lockedCellsArePassedOver();
    void droppedRowsBecomeNewRecords();
    void fixedRowsTakeNoMore();
    void oneRevertTakesItAllBack();

  private:
    bool set(const char *uiid, const QVariant &value, qint32 record = 1) {
        bool ok = false;
        mComponent->SetValue(QString::fromLatin1(uiid), value, record, true, ok);
        return ok;
    }
    [[nodiscard]] QString get(const char *uiid, qint32 record = 1) const {
        return ValueText::of(mComponent->GetValue(QString::fromLatin1(uiid), record));
    }
    bool paste(const QString &text, const QString &selection = QString(), const char *columns = kColumns) {
        mClipboard = text;
        mListener.clear();
        return mComponent->ImportRecordByPaste(QString(), QString::fromLatin1(columns), nullptr, QString(), selection);
    }
    void addChannels(int count);
    // "ID frequency power" of each channel.
    [[nodiscard]] QStringList channels() const;

    static constexpr const char *kColumns = "ChannelID_q7r|RxFreq_q7r|TxPower_q7r";
    std::unique_ptr<QTemporaryDir> mFolder;
    QString mClipboard;
    ComponentListener mListener;
    std::unique_ptr<TransformerComponent> mComponent;
};

void tst_import::init() {
    mFolder = std::make_unique<QTemporaryDir>();
    QFile table(mFolder->filePath(QStringLiteral("table")));
    QVERIFY(table.open(QIODevice::WriteOnly));
    table.write("[2]\nTx Power\tPuissance\nLow\tBasse\nHigh\tHaute\nID\tNuméro\n");
    table.close();
    ComponentPlaces places;
    places.settingsFile = mFolder->filePath(QStringLiteral("settings.ini"));
    places.translationFile = table.fileName();
    mComponent = std::make_unique<TransformerComponent>(places, [this] { return mClipboard; });
    mComponent->AddListener(&mListener);
    mComponent->ChangeTier(QStringLiteral("Advanced"));
    mListener.clear();
    mListener.answer = 6;
}

void tst_import::cleanup() { mComponent.reset(); }

void tst_import::addChannels(int count) {
    for (int i = 0; i < count; ++i) {
        qint32 added = 0;
        bool ok = false;
        mComponent->AddRecord(QStringLiteral("ChannelID_q7r"), QString(), added, ok);
        QVERIFY(ok);
    }
    mComponent->SaveForm(QString());
}

QStringList tst_import::channels() const {
    QStringList lines;
    for (qint32 record = 1; record <= mComponent->GetNumberOfRecords(QStringLiteral("ChannelID_q7r")); ++record)
        lines.append(QStringList({get("ChannelID_q7r", record), get("RxFreq_q7r", record).section(u'.', 0, 0),
                                  get("TxPower_q7r", record)})
                         .join(u' '));
    return lines;
}

void tst_import::rowsGoToTheirRecordsAndColumns_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("focus"); // in a grid of three channels, the second of which is the current one
    QTest::addColumn<qint32>("answer");
    QTest::addColumn<QString>("channels");
    const auto row = [](const char *name, const char *text, const char *selection, const char *focus, qint32 answer,
                        const char *channels) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromLatin1(selection) << QString::fromLatin1(focus)
                            << answer << QString::fromLatin1(channels);
    };
    constexpr qint32 kYes = 6;
    constexpr qint32 kNo = 7;
    row("by name, in another order", "Rx Frequency\tID\r\n150\t7\r\n151\t5\r\n", "", "", kNo,
        "1 160 3,2 160 3,3 160 3,7 150 3,5 151 3");
    row("by name, missing ones keep their value", "Rx Frequency\r\n150\r\n", "3", "", kNo, "1 160 3,2 160 3,3 150 3");
    row("by name in the set language", "Puissance\tRx Frequency\nBasse\t150\nLow\t151\n", "1|3", "", kNo,
        "1 150 1,2 160 3,3 151 1");
    row("a name twice is no line of heads", "ID\tID\tID\n", "", "", kNo, "1 160 3,2 160 3,3 160 3,4 160 3");
    row("as wide as the grid", "9\t140.5\tLow\r\n8\t141\tHaute", "", "TxPower_q7r", kNo,
        "1 160 3,2 160 3,3 160 3,9 140 1,8 141 3");
    row("over the selection, the rest new", "9\t140\tLow\n8\t141\tLow\n7\t142\tLow", "3|1", "", kNo,
        "8 141 1,2 160 3,9 140 1,7 142 1");
    row("a row for many selected ones", "9\t140\tLow\n", "1|2|3", "", kNo, "9 140 1,2 160 3,3 160 3");
    row("a block from the current record on", "150\tLow\n151\tLow\n152\tLow\n", "", "RxFreq_q7r", kYes,
        "1 160 3,2 150 1,3 151 1,4 152 1");
    row("a block that is not wanted", "150\tLow\n", "", "RxFreq_q7r", kNo, "1 160 3,2 160 3,3 160 3");
    row("a block over the selection", "Low\n", "1", "TxPower_q7r", kNo, "1 160 1,2 160 3,3 160 3");
    row("a block without a focused column", "12\n", "1", "EconomyTimer", kNo, "12 160 3,2 160 3,3 160 3");
    row("nothing", "", "", "", kNo, "1 160 3,2 160 3,3 160 3");
}

void tst_import::rowsGoToTheirRecordsAndColumns() {
    QFETCH(QString, text);
    QFETCH(QString, selection);
    QFETCH(QString, focus);
    QFETCH(qint32, answer);
    QFETCH(QString, channels);
    addChannels(2);
    QVERIFY(set("CurrentChannelNr", 2));
    mComponent->SaveSetting(QStringLiteral("Language"), 2);
    mComponent->FieldGotFocus(focus);
    mListener.answer = answer;
    const bool changed = paste(text, selection);
    QCOMPARE(tst_import::channels().join(u','), channels);
    QCOMPARE(changed, mComponent->GetFormIsDirty());
    QCOMPARE(mListener.of(QStringLiteral("LastAction")).size(), changed ? 1 : 0);
}

void tst_import::refusedCellsAreToldByRowAndColumn_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("channels"); // of two
    const auto row = [](const char *name, const char *first, const char *second, const char *third,
                        const char *fourth) { QTest::newRow(name) << first << second << third << fourth; };
    row("outside the limits", "9\t200\tLow", "1",
        "Row 1, column 2 (Rx Frequency): Rx Frequency must lie between 136 MHz", "9 160 1,2 160 3");
    row("no item", "ID\tTx Power\n9\tLowest", "1", "Row 2, column 2 (Tx Power): Lowest is not in the list",
        "9 160 3,2 160 3");
    row("identity in use", "2\t150\tLow\n2\t151\tLow", "", "Row 1, column 1 (ID): ID 2 is already in use",
        "1 160 3,2 160 3,3 150 1,4 151 1");
    row("identity twice", "7\t150\tLow\n7\t151\tLow", "1", "Row 2, column 1 (ID): ID 7 is already in use",
        "7 150 1,2 160 3,1 151 1");
    row("identity that stays in use", "2\t150\tLow\n0\t151\tLow", "1|2", "Row 1, column 1 (ID): ID 2 is already in use",
        "1 150 1,2 151 1");
    row("behind the last column", "9\t150\tLow\textra", "1", "Row 1, column 4: There is no column for this cell.",
        "9 150 1,2 160 3");
}

void tst_import::refusedCellsAreToldByRowAndColumn() {
    QFETCH(QString, text);
    QFETCH(QString, selection);
    QFETCH(QString, told);
    QFETCH(QString, channels);
    addChannels(1);
    QVERIFY(paste(text, selection));
    QCOMPARE(mListener.messages.size(), 1);
    QVERIFY2(mListener.messages.first().contains(told), qPrintable(mListener.messages.first()));
    QCOMPARE(tst_import::channels().join(u','), channels);
}

void tst_import::exchangedIdentitiesTakeTheirReferencesAlong() {
    addChannels(1);
    QVERIFY(set("PowerOnMode", 1));
    QVERIFY(set("ChannelGroupIDForRadioStartup", QStringLiteral("Channel 2")));
    QVERIFY(paste(QStringLiteral("2\t150\tLow\n1\t151\tLow\n"), QStringLiteral("1|2")));
    QVERIFY2(mListener.messages.isEmpty(), qPrintable(mListener.messages.join(u'\n')));
    QCOMPARE(channels().join(u','), QStringLiteral("2 150 1,1 151 1"));
    QCOMPARE(get("ChannelGroupIDForRadioStartup"), QStringLiteral("Channel 1"));
}

void tst_import::whatASettingDecidesAboutWaitsForIt() {
    // The action depends on the direction, which stands behind it.
    QVERIFY(paste(QStringLiteral("Monitor\tInput\n"), QStringLiteral("4"), "DigitalIOAction|DigitalIODirection"));
    QVERIFY2(mListener.messages.isEmpty(), qPrintable(mListener.messages.join(u'\n')));
    QCOMPARE(get("DigitalIOAction", 4), QStringLiteral("Monitor"));
}

void tst_import::lockedCellsArePassedOver() {
    QVERIFY(mComponent->SetAccessLevel(40));
    QVERIFY(paste(QStringLiteral("9\t200\tLow\n"), QStringLiteral("1")));
    QVERIFY(mListener.messages.isEmpty());
    QCOMPARE(channels().join(u','), QStringLiteral("1 160 1"));
    QVERIFY(paste(QStringLiteral("Pin\tLabel\nundefined\tHorn\n"), QStringLiteral("4"), "DigitalIOPin|DigitalIOLabel"));
    QCOMPARE(get("DigitalIOLabel", 4), QString()); // the pin is unused
}

void tst_import::droppedRowsBecomeNewRecords() {
    QMimeData data;
    data.setText(QStringLiteral("9\t150\tLow\r\n"));
    QVERIFY(mComponent->ImportRecordByDrop(QString(), QString::fromLatin1(kColumns), &data, nullptr, true));
    QCOMPARE(channels().join(u','), QStringLiteral("1 160 3,9 150 1"));
}

void tst_import::fixedRowsTakeNoMore() {
    QVERIFY(paste(QStringLiteral("123\n456\n"), QStringLiteral("20"), "DTMFPresetSequence"));
    QCOMPARE(get("DTMFPresetSequence", 20), QStringLiteral("123"));
    QCOMPARE(mListener.messages.size(), 1);
    QVERIFY2(mListener.messages.first().contains(QStringLiteral("The last 1 rows: ")),
             qPrintable(mListener.messages.first()));
}

void tst_import::oneRevertTakesItAllBack() {
    addChannels(2);
    QStringList lines;
    for (int i = 0; i < 2000; ++i)
        lines.append(QStringLiteral("%1\t150\tLow").arg(5000 - i));
    const TierData before = mComponent->state().current();
    QVERIFY(paste(lines.join(u'\n'), QStringLiteral("1|2|3")));
    QCOMPARE(mComponent->GetNumberOfRecords(QStringLiteral("ChannelID_q7r")), 2000);
    QCOMPARE(get("ChannelID_q7r", 2000), QStringLiteral("3001"));
    QVERIFY2(mListener.messages.isEmpty(), qPrintable(mListener.messages.join(u'\n')));
    mComponent->RevertFormData(QStringLiteral("Advanced"));
    QVERIFY(mComponent->state().current().sameValues(before));
    QVERIFY(!mComponent->GetFormIsDirty());
}

QTEST_GUILESS_MAIN(tst_import)
#include "tst_import.moc"
