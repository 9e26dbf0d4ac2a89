#include "dictionary_loader.h"
#include "field_defaults.h"
#include "final_checks.h"
#include "item_lists.h"
#include "named_functions.h"
#include "record_editor.h"
#include "record_positions.h"
#include "rows.h"
#include "rule_evaluator.h"
#include "value_codec.h"
#include "value_validator.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

std::optional<ValueFault::Kind> faultOf(const ValueResult &result) {
    const auto *fault = std::get_if<ValueFault>(&result);
    return fault == nullptr ? std::nullopt : std::optional(fault->kind);
}

} // namespace

// The whole compiled-in catalogue through model and rules: a fault of one field's data shows here by its id.
class CatalogueTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { mDictionary = DictionaryLoader::loadCompiledIn(); }

    void everyNamedFunctionExists() {
        for (const FieldDefinition &field : mDictionary->fields()) {
            QVERIFY2(field.scope.isEmpty() || NamedFunctions::scopeNames().contains(field.scope), qPrintable(field.id));
            QVERIFY2(field.kind != FieldKind::Derived || NamedFunctions::derivedNames().contains(field.function),
                     qPrintable(field.id));
        }
    }

    void defaultsPassTheFinalChecks() {
        for (qint32 tier = 0; tier < qint32(mDictionary->tiers().size()); ++tier) {
            const TierData data(*mDictionary, TierIndex(tier));
            for (const Finding &finding : FinalChecks(data).run())
                QVERIFY2(false,
                         qPrintable(mDictionary->field(finding.field).id + QLatin1Char(' ') + finding.message.text()));
        }
    }

    void everyValueSurvivesItsShownForm() {
        for (qint32 tier = 0; tier < qint32(mDictionary->tiers().size()); ++tier) {
            const TierData data = filled(TierIndex(tier));
            const FieldReader reader(data);
            for (const FieldDefinition &field : mDictionary->fields()) {
                if (!field.tiers.contains(TierIndex(tier)))
                    continue;
                for (const RecordAddress record : data.records(field.structure)) {
                    const std::optional<StoredValue> value = reader.value(field.index, record);
                    QVERIFY2(value.has_value(), qPrintable(field.id));
                    QVERIFY2(reader.shown(field.index, record).size() <= field.width || field.isTextual(),
                             qPrintable(field.id));
                    if (!field.isStored())
                        continue;
                    const NumberLimits limits = reader.limits(field.index, record);
                    const ValueResult back = ValueCodec::parseShown(field, ValueCodec::shown(field, *value), limits);
                    QVERIFY2(!faultOf(back) && std::get<StoredValue>(back) == *value, qPrintable(field.id));
                }
            }
        }
    }

    void crossChecksFindTheirFault() {
        constexpr bool kError = true;
        constexpr bool kWarning = false;
        // sets: UIID(record)=stored, joined by blanks
        for (const auto &[sets, field, error] : Rows<const char *, const char *, bool>{
                 {"wide channel under compliance", "ChannelBandwidth_q7r(0.1)=250", "ChannelBandwidth_q7r", kError},
                 {"channel twice in a group",
                  "FilteredScanGroupChannelMemberID(1.1)=1 FilteredScanGroupChannelMemberID(1.2)=1",
                  "FilteredScanGroupChannelMemberID", kError},
                 {"member without a channel", "", "FilteredScanGroupChannelMemberID", kWarning},
                 {"vote group without members", "GroupType_q7r(0.2)=1", "GroupType_q7r", kError},
                 {"empty group", "", "GroupType_q7r", kWarning},
                 {"signalling without a system", "SignallingType(0.1)=1", "NetworkSignallingID", kError},
                 {"start-up channel that is None", "PowerOnMode(0.0)=1", "ChannelGroupIDForRadioStartup", kError},
                 {"identification without a text", "CWIDEnabled(0.1)=1", "CWIDString", kError},
                 {"transmitter without protection", "VSWRFoldbackOverride(0.0)=1", "VSWRFoldbackOverride", kWarning},
                 {"frequencies of another band", "Band_q7r(0.0)=3", "RxFreq_q7r", kError},
                 {"priority channel that is no member",
                  "PriorityScan_q7r(0.1)=1 Priority1Channel_q7r(0.1)=2 FilteredScanGroupChannelMemberID(1.1)=1",
                  "Priority1Channel_q7r", kError},
                 {"identity twice", "ChannelID_q7r(0.2)=1", "ChannelID_q7r", kError},
                 {"minimum above maximum", "T99MinGapPeriod_q7r(0.1)=510", "T99MinGapPeriod_q7r", kError},
                 {"all call within the second tone", "T99MinAllCallTonePeriod_q7r(0.1)=4500",
                  "T99MaxSecondTonePeriod_q7r", kWarning},
                 {"cycle longer than a transmission",
                  "EmergencyEnabled(0.1)=1 EmCyclingType(0.1)=1 TxDurationTimer(0.1)=5", "EmCyclingTxTime", kError},
                 {"cycles without end",
                  "EmergencyEnabled(0.1)=1 EmCyclingType(0.1)=1 EmCyclingNumber(0.1)=0 EmCyclingMaxTime(0.1)=0",
                  "EmCyclingNumber", kWarning},
                 {"one serial port for two", "DataOptionsEnabled(0.0)=1 GPSEnabled(0.0)=1 GPSSerialPort(0.0)=0",
                  "GPSSerialPort", kError},
                 {"equal flow control characters", "DataCMFlowControl(0.0)=2 DataXon(0.0)=19", "DataXoff", kError},
                 {"one pin for both lines", "DataCMFlowControl(0.0)=1 IOPRTS(0.0)=4 IOPCTS(0.0)=1", "IOPCTS", kError},
                 {"line on a pin that is in use",
                  "DataCMFlowControl(0.0)=1 IOPRTS(0.0)=1 DigitalIODirection(0.1)=1 DigitalIOAction(0.1)=1", "IOPRTS",
                  kError},
                 {"identity shorter than the format", "RxDecodeSeq1_q7r(0.1)=1234", "RxDecodeSeq1_q7r", kError},
                 {"burst longer than the format", "BurstSequence2_q7r(1.3)=123456", "BurstSequence2_q7r", kError},
                 {"two digits of status for one", "FreeFormBurstB(0.3)=1 FreeFormStatus(0.3)=12", "FreeFormStatus",
                  kError},
                 {"repeat tone is group tone", "GroupFormat(0.1)=1 GroupTone(0.1)=5", "GroupTone", kError},
                 {"two digits of one frequency", "ToneSet(0.1)=12 CustomFrequencies1(0.1)=5 CustomFrequencies7(0.1)=5",
                  "CustomFrequencies7", kError},
                 {"close frequencies in one sequence",
                  "ToneSet(0.1)=12 CustomFrequencies1(0.1)=8 CustomFrequencies7(0.1)=9 BurstSequence2_q7r(1.1)=12347",
                  "CustomFrequencies7", kWarning},
                 {"two-tone frequencies close together", "T99Custom_q7r(0.1)=1 T99CustomToneB_q7r(0.1)=3500",
                  "T99CustomToneB_q7r", kWarning},
                 {"forbidden identity", "DataOptionsEnabled(0.0)=1 DataIdentity(0.0)=00000", "DataIdentity", kError},
                 {"three of four digits", "DataOptionsEnabled(0.0)=1 dataTotalSystemIdHex(0.0)=1FF",
                  "dataTotalSystemIdHex", kError},
                 {"ring pattern without a ring", "AlertRingPattern1(0.0)=", "AlertRingPattern1", kError},
                 {"MDC identity of a group", "MDC1200ANISequence(0.1)=E001", "MDC1200ANISequence", kError},
                 {"MDC identity with the wildcard", "MDC1200ANISequence(0.1)=1F01", "MDC1200ANISequence", kWarning},
                 {"PIN of zeros",
                  "SecurityLockOnPowerUp(0.0)=1 SecurityPIN1(0.0)=0 SecurityPIN2(0.0)=0 SecurityPIN3(0.0)=0",
                  "SecurityPIN1", kWarning},
                 {"decoder slower than the encoder", "SIBTEnabled_q7r(0.1)=1 SIBTMinimumDecodeDuration_q7r(0.1)=600",
                  "SIBTMinimumDecodeDuration_q7r", kWarning},
                 {"key that sends an empty preset", "FunctionKey1(0.0)=8 FK1Parameter1(0.0)=131073", "FK1Parameter1",
                  kWarning},
             }) {
            TierData data = filled(TierIndex(2));
            const auto isFound = [this, &data, wanted = QLatin1String(field), isError = error] {
                return std::ranges::any_of(FinalChecks(data).run(), [&](const Finding &finding) {
                    return mDictionary->field(finding.field).id == wanted &&
                           (finding.severity == Finding::Severity::Error) == isError &&
                           !finding.message.text().contains(u"%0");
                });
            };
            QCOMPARE(isFound(), *sets == 0);
            for (const QString &set : QString::fromLatin1(sets).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
                const QString id = set.section(QLatin1Char('('), 0, 0);
                const QStringList address =
                    set.section(QLatin1Char('('), 1).section(QLatin1Char(')'), 0, 0).split(QLatin1Char('.'));
                const QString value = set.section(QLatin1Char('='), 1);
                const FieldIndex index = mDictionary->indexOf(id);
                QVERIFY2(index.isValid(), qPrintable(id));
                data.setValue(index, {address[0].toInt(), address[1].toInt()},
                              mDictionary->field(index).isTextual() ? StoredValue(value) : StoredValue(value.toInt()));
            }
            QVERIFY(isFound());
            const QString form = mDictionary->find(QLatin1String(field))->form;
            QVERIFY(!FinalChecks(data).run(form).empty());
        }
    }

    void aPositionStaysWithItsRecord() {
        TierData data(*mDictionary, TierIndex(1));
        RecordEditor editor(data);
        const StructureIndex system = *mDictionary->structureByName(u"SelcallSystem"_s);
        const StructureIndex sequence = *mDictionary->structureByName(u"FreeFormatSequence"_s);
        RecordPositions positions(data);
        QCOMPARE(positions.position(system), 0);
        QVERIFY(!positions.setPosition(data, system, 1));
        positions.follow(data, editor.insertRecord(system, {0, 1}).changes);
        QCOMPARE(positions.position(system), 1);
        positions.follow(data, editor.insertRecord(system, {0, 2}).changes);
        QVERIFY(positions.setPosition(data, system, 2));
        QVERIFY(positions.setPosition(data, sequence, 9)); // second of system 2
        QVERIFY(!positions.setPosition(data, sequence, 15));
        positions.follow(data, editor.insertRecord(system, {0, 1}).changes);
        QCOMPARE(positions.position(system), 3);
        QCOMPARE(positions.position(sequence), 16);
        positions.follow(data, editor.moveRecord(system, 0, 3, 1).changes);
        QCOMPARE(positions.position(system), 1);
        QCOMPARE(positions.position(sequence), 2);
        QCOMPARE(positions.address(*mDictionary, *mDictionary->structureByName(u"TxCallBurst"_s), 4),
                 (RecordAddress{1, 4}));
        for (int left = 3; left > 0; --left)
            positions.follow(data, editor.deleteRecord(system, {0, left}).changes);
        QCOMPARE(positions.position(system), 0);
        QCOMPARE(positions.position(sequence), 0);
    }

  private:
    // One record at least of everything that the tier can have.
    [[nodiscard]] TierData filled(TierIndex tier) const {
        TierData data(*mDictionary, tier);
        RecordEditor editor(data);
        for (const RecordStructure &structure : mDictionary->structures()) {
            const qint32 parent = structure.isScoped() ? 1 : 0;
            for (qint32 number = data.recordCount(structure.index, parent); number < 2; ++number)
                (void)editor.insertRecord(structure.index, {parent, number + 1});
        }
        return data;
    }

    std::unique_ptr<const Dictionary> mDictionary;
};

QTEST_GUILESS_MAIN(CatalogueTest)
#include "catalogue_test.moc"
