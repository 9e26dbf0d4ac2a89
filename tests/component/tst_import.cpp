#include "component_listener.h"
#include "component_state.h"
#include "rows.h"
#include "value_text.h"

#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// Rows of text pasted on the grid of channels: which record and column each cell goes to, and what is told of the rest.
class tst_import : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        mFolder = std::make_unique<QTemporaryDir>();
        QFile table(mFolder->filePath(u"table"_s));
        QVERIFY(table.open(QIODevice::WriteOnly));
        table.write("[2]\nTx Power\tPuissance\nLow\tBasse\nHigh\tHaute\nID\tNuméro\n");
        table.close();
        ComponentPlaces places;
        places.settingsFile = mFolder->filePath(u"settings.ini"_s);
        places.translationFile = table.fileName();
        mComponent = std::make_unique<TransformerComponent>(places, [this] { return mClipboard; });
        mComponent->AddListener(&mListener);
        mComponent->ChangeTier(u"Advanced"_s);
        mListener.clear();
        mListener.answer = 6;
    }

    void cleanup() { mComponent.reset(); }

    void rowsGoToTheirRecordsAndColumns() {
        constexpr qint32 kYes = 6;
        constexpr qint32 kNo = 7;
        // wanted: in a grid of three channels, the second of which is the current one
        for (const auto &[text, selection, focus, answer, wanted] : Rows<QString, QString, QString, qint32, QString>{
                 {"by name, in another order", u"Rx Frequency\tID\r\n150\t7\r\n151\t5\r\n"_s, u""_s, u""_s, kNo,
                  u"1 160 3,2 160 3,3 160 3,7 150 3,5 151 3"_s},
                 {"by name, missing ones keep their value", u"Rx Frequency\r\n150\r\n"_s, u"3"_s, u""_s, kNo,
                  u"1 160 3,2 160 3,3 150 3"_s},
                 {"by name in the set language", u"Puissance\tRx Frequency\nBasse\t150\nLow\t151\n"_s, u"1|3"_s, u""_s,
                  kNo, u"1 150 1,2 160 3,3 151 1"_s},
                 {"a name twice is no line of heads", u"ID\tID\tID\n"_s, u""_s, u""_s, kNo,
                  u"1 160 3,2 160 3,3 160 3,4 160 3"_s},
                 {"as wide as the grid", u"9\t140.5\tLow\r\n8\t141\tHaute"_s, u""_s, u"TxPower_q7r"_s, kNo,
                  u"1 160 3,2 160 3,3 160 3,9 140 1,8 141 3"_s},
                 {"over the selection, the rest new", u"9\t140\tLow\n8\t141\tLow\n7\t142\tLow"_s, u"3|1"_s, u""_s, kNo,
                  u"8 141 1,2 160 3,9 140 1,7 142 1"_s},
                 {"a row for many selected ones", u"9\t140\tLow\n"_s, u"1|2|3"_s, u""_s, kNo,
                  u"9 140 1,2 160 3,3 160 3"_s},
                 {"a block from the current record on", u"150\tLow\n151\tLow\n152\tLow\n"_s, u""_s, u"RxFreq_q7r"_s,
                  kYes, u"1 160 3,2 150 1,3 151 1,4 152 1"_s},
                 {"a block that is not wanted", u"150\tLow\n"_s, u""_s, u"RxFreq_q7r"_s, kNo,
                  u"1 160 3,2 160 3,3 160 3"_s},
                 {"a block over the selection", u"Low\n"_s, u"1"_s, u"TxPower_q7r"_s, kNo,
                  u"1 160 1,2 160 3,3 160 3"_s},
                 {"a block without a focused column", u"12\n"_s, u"1"_s, u"EconomyTimer"_s, kNo,
                  u"12 160 3,2 160 3,3 160 3"_s},
                 {"nothing", u""_s, u""_s, u""_s, kNo, u"1 160 3,2 160 3,3 160 3"_s},
             }) {
            cleanup();
            init();
            addChannels(2);
            QVERIFY(set("CurrentChannelNr", 2));
            mComponent->SaveSetting(u"Language"_s, 2);
            mComponent->FieldGotFocus(focus);
            mListener.answer = answer;
            const bool changed = paste(text, selection);
            QCOMPARE(channels().join(u','), wanted);
            QCOMPARE(changed, mComponent->GetFormIsDirty());
            QCOMPARE(mListener.of(u"LastAction"_s).size(), changed ? 1 : 0);
        }
    }

    void refusedCellsAreToldByRowAndColumn() {
        // wanted: the two channels afterwards, with the new ones behind
        for (const auto &[text, selection, told, wanted] : Rows<QString, QString, QString, QString>{
                 {"outside the limits", u"9\t200\tLow"_s, u"1"_s,
                  u"Row 1, column 2 (Rx Frequency): Rx Frequency must lie between 136 MHz"_s, u"9 160 1,2 160 3"_s},
                 {"no item", u"ID\tTx Power\n9\tLowest"_s, u"1"_s,
                  u"Row 2, column 2 (Tx Power): Lowest is not in the list"_s, u"9 160 3,2 160 3"_s},
                 {"identity in use", u"2\t150\tLow\n2\t151\tLow"_s, u""_s,
                  u"Row 1, column 1 (ID): ID 2 is already in use"_s, u"1 160 3,2 160 3,3 150 1,4 151 1"_s},
                 {"identity twice", u"7\t150\tLow\n7\t151\tLow"_s, u"1"_s,
                  u"Row 2, column 1 (ID): ID 7 is already in use"_s, u"7 150 1,2 160 3,1 151 1"_s},
                 {"identity that stays in use", u"2\t150\tLow\n0\t151\tLow"_s, u"1|2"_s,
                  u"Row 1, column 1 (ID): ID 2 is already in use"_s, u"1 150 1,2 151 1"_s},
                 {"behind the last column", u"9\t150\tLow\textra"_s, u"1"_s,
                  u"Row 1, column 4: There is no column for this cell."_s, u"9 150 1,2 160 3"_s},
             }) {
            cleanup();
            init();
            addChannels(1);
            QVERIFY(paste(text, selection));
            QCOMPARE(mListener.messages.size(), 1);
            QVERIFY2(mListener.messages.first().contains(told), qPrintable(mListener.messages.first()));
            QCOMPARE(channels().join(u','), wanted);
        }
    }

    void exchangedIdentitiesTakeTheirReferencesAlong() {
        addChannels(1);
        QVERIFY(set("PowerOnMode", 1));
        QVERIFY(set("ChannelGroupIDForRadioStartup", u"Channel 2"_s));
        QVERIFY(paste(u"2\t150\tLow\n1\t151\tLow\n"_s, u"1|2"_s));
        QVERIFY2(mListener.messages.isEmpty(), qPrintable(mListener.messages.join(u'\n')));
        QCOMPARE(channels().join(u','), u"2 150 1,1 151 1"_s);
        QCOMPARE(get("ChannelGroupIDForRadioStartup"), u"Channel 1"_s);
    }

    void whatASettingDecidesAboutWaitsForIt() {
        // The action depends on the direction, which stands behind it.
        QVERIFY(paste(u"Monitor\tInput\n"_s, u"4"_s, "DigitalIOAction|DigitalIODirection"));
        QVERIFY2(mListener.messages.isEmpty(), qPrintable(mListener.messages.join(u'\n')));
        QCOMPARE(get("DigitalIOAction", 4), u"Monitor"_s);
    }

    void lockedCellsArePassedOver() {
        QVERIFY(mComponent->SetAccessLevel(40));
        QVERIFY(paste(u"9\t200\tLow\n"_s, u"1"_s));
        QVERIFY(mListener.messages.isEmpty());
        QCOMPARE(channels().join(u','), u"1 160 1"_s);
        QVERIFY(paste(u"Pin\tLabel\nundefined\tHorn\n"_s, u"4"_s, "DigitalIOPin|DigitalIOLabel"));
        QCOMPARE(get("DigitalIOLabel", 4), QString()); // the pin is unused
    }

    void droppedRowsBecomeNewRecords() {
        QMimeData data;
        data.setText(u"9\t150\tLow\r\n"_s);
        QVERIFY(mComponent->ImportRecordByDrop(QString(), QString::fromLatin1(kColumns), &data, nullptr, true));
        QCOMPARE(channels().join(u','), u"1 160 3,9 150 1"_s);
    }

    void fixedRowsTakeNoMore() {
        QVERIFY(paste(u"123\n456\n"_s, u"20"_s, "DTMFPresetSequence"));
        QCOMPARE(get("DTMFPresetSequence", 20), u"123"_s);
        QCOMPARE(mListener.messages.size(), 1);
        QVERIFY2(mListener.messages.first().contains(u"The last 1 rows: "_s), qPrintable(mListener.messages.first()));
    }

    void oneRevertTakesItAllBack() {
        addChannels(2);
        QStringList lines;
        for (int i = 0; i < 2000; ++i)
            lines.append(u"%1\t150\tLow"_s.arg(5000 - i));
        const TierData before = mComponent->state().current();
        QVERIFY(paste(lines.join(u'\n'), u"1|2|3"_s));
        QCOMPARE(mComponent->GetNumberOfRecords(u"ChannelID_q7r"_s), 2000);
        QCOMPARE(get("ChannelID_q7r", 2000), u"3001"_s);
        QVERIFY2(mListener.messages.isEmpty(), qPrintable(mListener.messages.join(u'\n')));
        mComponent->RevertFormData(u"Advanced"_s);
        QVERIFY(mComponent->state().current().sameValues(before));
        QVERIFY(!mComponent->GetFormIsDirty());
    }

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
    void addChannels(int count) {
        for (int i = 0; i < count; ++i) {
            qint32 added = 0;
            bool ok = false;
            mComponent->AddRecord(u"ChannelID_q7r"_s, QString(), added, ok);
            QVERIFY(ok);
        }
        mComponent->SaveForm(QString());
    }

    // "ID frequency power" of each channel.
    [[nodiscard]] QStringList channels() const {
        QStringList lines;
        for (qint32 record = 1; record <= mComponent->GetNumberOfRecords(u"ChannelID_q7r"_s); ++record)
            lines.append(QStringList({get("ChannelID_q7r", record), get("RxFreq_q7r", record).section(u'.', 0, 0),
                                      get("TxPower_q7r", record)})
                             .join(u' '));
        return lines;
    }

    static constexpr const char *kColumns = "ChannelID_q7r|RxFreq_q7r|TxPower_q7r";
    std::unique_ptr<QTemporaryDir> mFolder;
    QString mClipboard;
    ComponentListener mListener;
    std::unique_ptr<TransformerComponent> mComponent;
};

QTEST_GUILESS_MAIN(tst_import)
#include "tst_import.moc"
