#include "component_listener.h"
#include "component_state.h"
#include "currency.h"
#include "decimal_text.h"
#include "dictionary_loader.h"
#include "field_reader.h"
#include "value_codec.h"
#include "value_text.h"
#include "xarray_db.h"

#include <QCoreApplication>
#include <QTest>

class tst_values : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();
    void valueIsTakenInItsNormalForm_data();
    void valueIsTakenInItsNormalForm();
    void refusalNamesTheLabelAndWhatIsAllowed_data();
    void refusalNamesTheLabelAndWhatIsAllowed();
    void everyNumberKeepsItsLimits_data() { tiersAndVersions(); }
    void everyNumberKeepsItsLimits();
    void everyItemGoesInAndComesOut_data() { tiersAndVersions(); }
    void everyItemGoesInAndComesOut();
    void newRecordsHaveNumbersOfTheirOwn();
    void firstCallerBurstIsTheOwnIdentityUntilItIsChanged();
    void anotherBandMovesTheFrequenciesThatLieOutside();
    void dependentsAreToldBeforeSetValueReturns();
    void updatesStayAwayWhileSwitchedOff();
    void listenerMayLeaveDuringAnEvent();
    void unknownUiidIsNoError();
    void onlyAFieldOfTheTierIsUndefined();
    void focusShowsLimitsOfNumbersOnly();
    void positionIsNoEdit();
    void gridRefreshWaitsForTheCommandAndTheBatch();
    void deletedNetworkInUseIsRefused();
    void sortMovesReferencesAlong();
    void revertTakesBackRecordOperations();
    void lowerAccessLevelLocksFields();
    void fixedItemsAreOfferedBeforeAnyRecord();
    void editTellsWhichFormsItMakesAvailable();
    void finalCheckRefusesErrorsAndAsksAboutWarnings();

  private:
    bool set(const QString &uiid, const QVariant &value, qint32 record = 1) {
        bool ok = false;
        mComponent->SetValue(uiid, value, record, true, ok);
        return ok;
    }
    [[nodiscard]] QString get(const QString &uiid, qint32 record = 1) const {
        return ValueText::of(mComponent->GetValue(uiid, record));
    }
    void tiersAndVersions();
    void fill(const QString &tier, qint32 version = 2);
    [[nodiscard]] bool canBeSet(const FieldDefinition &field) const;

    std::unique_ptr<const Dictionary> mDictionary = DictionaryLoader::loadCompiledIn();
    std::unique_ptr<ComponentListener> mListener;
    std::unique_ptr<TransformerComponent> mComponent;
};

void tst_values::init() {
    mListener = std::make_unique<ComponentListener>();
    mComponent = std::make_unique<TransformerComponent>(ComponentPlaces{});
    mComponent->AddListener(mListener.get());
    mComponent->ChangeTier(QStringLiteral("Advanced"));
    mListener->clear();
}

void tst_values::cleanup() {
    mComponent->ShutDown();
    mComponent.reset();
}

void tst_values::valueIsTakenInItsNormalForm_data() {
    QTest::addColumn<QString>("uiid");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("whole number as text") << "EconomyTimer" << QVariant(QStringLiteral("20")) << "20";
    QTest::newRow("number") << "EconomyTimer" << QVariant(255) << "255";
    QTest::newRow("floating number") << "EconomyTimer" << QVariant(12.0) << "12";
    QTest::newRow("blanks") << "EconomyTimer" << QVariant(QStringLiteral(" 7 ")) << "7";
    QTest::newRow("decimal point") << "RxFreq_q7r" << QVariant(QStringLiteral("156.5")) << "156.500000";
    QTest::newRow("decimal comma") << "RxFreq_q7r" << QVariant(QStringLiteral("156,5")) << "156.500000";
    QTest::newRow("no fraction") << "RxFreq_q7r" << QVariant(QStringLiteral("136")) << "136.000000";
    QTest::newRow("6.25 kHz raster") << "RxFreq_q7r" << QVariant(QStringLiteral("150.00625")) << "150.006250";
    QTest::newRow("2.5 kHz raster") << "RxFreq_q7r" << QVariant(QStringLiteral("150.0025")) << "150.002500";
    QTest::newRow("list item's value") << "TxPower_q7r" << QVariant(QStringLiteral("0")) << "0";
    QTest::newRow("ID tracker's text") << "RxSignalling_q7r" << QVariant(QStringLiteral("67.0 Hz")) << "67.0 Hz";
}

void tst_values::valueIsTakenInItsNormalForm() {
    QFETCH(QString, uiid);
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    QVERIFY2(set(uiid, value), qPrintable(mListener->messages.join(u'\n')));
    QCOMPARE(get(uiid), expected);
    QVERIFY(mComponent->GetDataIsDirty());
    QCOMPARE(mComponent->GetSaveAllowed(), 1);
}

void tst_values::refusalNamesTheLabelAndWhatIsAllowed_data() {
    QTest::addColumn<QString>("uiid");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("parts");
    const QStringList timer = {QStringLiteral("Economy Timer"), QStringLiteral("0"), QStringLiteral("255")};
    QTest::newRow("above") << "EconomyTimer" << QVariant(256) << timer;
    QTest::newRow("below") << "EconomyTimer" << QVariant(-1) << timer;
    QTest::newRow("no number") << "EconomyTimer" << QVariant(QStringLiteral("ten")) << timer;
    QTest::newRow("empty") << "EconomyTimer" << QVariant(QString()) << timer;
    QTest::newRow("infinite") << "EconomyTimer" << QVariant(QStringLiteral("inf")) << timer;
    QTest::newRow("beyond 32 bits") << "EconomyTimer" << QVariant(1e12) << timer;
    QTest::newRow("outside the band") << "RxFreq_q7r" << QVariant(QStringLiteral("174.0025"))
                                      << QStringList{QStringLiteral("Rx Frequency"), QStringLiteral("136"),
                                                     QStringLiteral("174")};
    QTest::newRow("off the raster") << "RxFreq_q7r" << QVariant(QStringLiteral("150.001"))
                                    << QStringList{QStringLiteral("Rx Frequency")};
    QTest::newRow("two points") << "RxFreq_q7r" << QVariant(QStringLiteral("156.5.0"))
                                << QStringList{QStringLiteral("Rx Frequency")};
    QTest::newRow("no such item") << "TxPower_q7r" << QVariant(9) << QStringList{QStringLiteral("Tx Power")};
    QTest::newRow("no such tone") << "RxSignalling_q7r" << QVariant(QStringLiteral("68.0 Hz"))
                                  << QStringList{QStringLiteral("Rx Signalling")};
    QTest::newRow("no such network") << "ChannelNetworkId_q7r" << QVariant(QStringLiteral("32"))
                                     << QStringList{QStringLiteral("Network")};
}

void tst_values::refusalNamesTheLabelAndWhatIsAllowed() {
    QFETCH(QString, uiid);
    QFETCH(QVariant, value);
    QFETCH(QStringList, parts);
    const QString before = get(uiid);
    QVERIFY(!set(uiid, value));
    QCOMPARE(mListener->messages.size(), 1);
    for (const QString &part : parts)
        QVERIFY2(mListener->messages.first().contains(part), qPrintable(mListener->messages.first()));
    QCOMPARE(get(uiid), before);
    QVERIFY(!mComponent->GetDataIsDirty());
}

void tst_values::tiersAndVersions() {
    QTest::addColumn<QString>("tier");
    QTest::addColumn<qint32>("version");
    for (const TierDefinition &tier : mDictionary->tiers()) {
        for (const VersionDefinition &version : mDictionary->versions())
            QTest::addRow("%s %s", qPrintable(tier.key), qPrintable(version.name)) << tier.key << version.level;
    }
}

// One record at least of everything that the tier can have.
void tst_values::fill(const QString &tier, qint32 version) {
    mComponent->ChangeTier(tier);
    mComponent->state().current().setVersionLevel(version);
    for (const RecordStructure &structure : mDictionary->structures()) {
        const bool canGrow = !structure.isRadio() && structure.in(mComponent->state().tier()).most > 0;
        qint32 added = 0;
        bool ok = true;
        if (canGrow && mComponent->GetNumberOfRecords(structure.guide) == 0)
            mComponent->AddRecord(structure.guide, QString(), added, ok);
        QVERIFY2(ok, qPrintable(structure.name));
    }
    mListener->clear();
}

bool tst_values::canBeSet(const FieldDefinition &field) const {
    const TierData &data = mComponent->state().current();
    return field.isStored() && !field.readOnly && field.levelIn(data.tier()) <= data.versionLevel();
}

// In stored units: least and most are taken, what is a step beyond or between two steps is not.
void tst_values::everyNumberKeepsItsLimits() {
    QFETCH(QString, tier);
    QFETCH(qint32, version);
    fill(tier, version);
    int tried = 0;
    for (const FieldDefinition &field : mDictionary->fields()) {
        if (field.kind != FieldKind::Number)
            continue;
        if (!canBeSet(field)) {
            QVERIFY2(!set(field.id, DecimalText::of(field.limits.minimum, field.decimals)), qPrintable(field.id));
            continue;
        }
        const NumberLimits limits = FieldReader(mComponent->state().current()).limits(field.index, {});
        const qint32 step = limits.rasters.empty() ? limits.step : limits.rasters.front();
        const auto taken = [&](qint32 stored) { return set(field.id, DecimalText::of(stored, field.decimals)); };
        for (const qint32 stored : {limits.maximum, limits.minimum}) {
            QVERIFY2(taken(stored), qPrintable(field.id));
            QCOMPARE(get(field.id), ValueCodec::shown(field, stored));
        }
        QVERIFY2(!taken(limits.minimum - step) && !taken(limits.maximum + step), qPrintable(field.id));
        QVERIFY2(step == 1 || !taken(limits.minimum + 1), qPrintable(field.id));
        QVERIFY2(!set(field.id, DecimalText::of(limits.minimum * 10 + 5, field.decimals + 1)), qPrintable(field.id));
        QCOMPARE(get(field.id), ValueCodec::shown(field, limits.minimum));
        ++tried;
    }
    QVERIFY2(tried >= 30, qPrintable(QString::number(tried)));
}

void tst_values::everyItemGoesInAndComesOut() {
    QFETCH(QString, tier);
    QFETCH(qint32, version);
    fill(tier, version);
    int tried = 0;
    for (const FieldDefinition &field : mDictionary->fields()) {
        if (!canBeSet(field) || (field.kind != FieldKind::List && !field.hasIdItems()))
            continue;
        XArrayDB items;
        qint32 scope = 0;
        QVERIFY2(mComponent->GetComboItems(field.id, 1, items, scope), qPrintable(field.id));
        const QStringList values = mComponent->GetIsComboIndex(field.id).split(u'|', Qt::SkipEmptyParts);
        QVERIFY2(values.isEmpty() || values.size() == items.UpperBound(1) + 1, qPrintable(field.id));
        for (const ListItem &item : field.items)
            QVERIFY2(item.level <= version || !set(field.id, field.hasIdItems() ? QVariant(item.text) : item.value),
                     qPrintable(field.id + u' ' + item.text));
        for (qint32 row = 0; row <= items.UpperBound(1); ++row) {
            const QString listValue = values.isEmpty() ? QString::number(row) : values[row];
            const QString value = field.hasIdItems() ? items.Value(row, 1).toString() : listValue;
            QVERIFY2(set(field.id, value), qPrintable(field.id + u' ' + value));
            QCOMPARE(get(field.id), value);
            ++tried;
        }
    }
    QVERIFY2(tried > 300, "hardly any item was tried");
}

void tst_values::dependentsAreToldBeforeSetValueReturns() {
    QVERIFY(set(QStringLiteral("EconomyTimer"), QStringLiteral("0"), 0));
    const qsizetype changed = mListener->log.indexOf(QStringLiteral("FieldHasChanged"));
    const QStringList enables = mListener->log.mid(0, changed);
    QCOMPARE(enables, mListener->of(QStringLiteral("SetEnableDisableByUIID")));
    QVERIFY(enables.contains(QStringLiteral("SetEnableDisableByUIID EconomyDutyCycle 0")));
    QVERIFY(mListener->log.last().startsWith(QStringLiteral("LastAction Economy Timer")));
    mListener->clear();
    QVERIFY(set(QStringLiteral("RxFreq_q7r"), QStringLiteral("150")));
    QCOMPARE(mListener->of(QStringLiteral("UpdateUIFieldByUIID")),
             QStringList({QStringLiteral("UpdateUIFieldByUIID RxFreq_q7r 1 150.000000"),
                          QStringLiteral("UpdateUIFieldByUIID TxFreq_q7r 1 150.000000")}));
}

void tst_values::updatesStayAwayWhileSwitchedOff() {
    mComponent->SetProviderUpdateUIOnFieldChange(false);
    QVERIFY(set(QStringLiteral("RxFreq_q7r"), QStringLiteral("150")));
    QVERIFY(mListener->of(QStringLiteral("UpdateUIFieldByUIID")).isEmpty());
    QVERIFY(!mListener->of(QStringLiteral("FieldHasChanged")).isEmpty());
}

void tst_values::listenerMayLeaveDuringAnEvent() {
    ComponentListener leaving;
    mComponent->AddListener(&leaving);
    mListener->onEvent = [&](const QString &) { mComponent->RemoveListener(&leaving); };
    QVERIFY(set(QStringLiteral("RxFreq_q7r"), QStringLiteral("150")));
    QVERIFY(!mListener->log.isEmpty());
    QVERIFY(leaving.log.isEmpty());
}

void tst_values::unknownUiidIsNoError() {
    const QString id = QStringLiteral("economytimer"); // case counts
    QCOMPARE(get(id), ValueText::undefined());
    QCOMPARE(mComponent->GetLabel(id), QString());
    QCOMPARE(mComponent->GetNumberOfRecords(id), 0);
    QVERIFY(!mComponent->GetFieldEnabled(id, 0));
    QVERIFY(!set(id, 1));
    QCOMPARE(mListener->log.count(QStringLiteral("UIIDNotFound ") + id), 5);
    QCOMPARE(mListener->log.size(), 5);
    QCOMPARE(mComponent->GetHelpText(id), QString());
    QCOMPARE(mListener->log.size(), 5);
}

// Greying an undefined value comes before hiding, and there are no scan groups in new data.
void tst_values::onlyAFieldOfTheTierIsUndefined() {
    const QString id = QStringLiteral("DisableDeferredCallingOnThisGroup");
    mComponent->ChangeTier(QStringLiteral("Standard"));
    QCOMPARE(get(id), ValueText::undefined());
    mComponent->ChangeTier(QStringLiteral("Basic"));
    QCOMPARE(get(id), QString());
}

void tst_values::focusShowsLimitsOfNumbersOnly() {
    mComponent->FieldGotFocus(QStringLiteral("RxFreq_q7r"));
    mComponent->FieldGotFocus(QStringLiteral("TxPower_q7r"));
    QCOMPARE(mListener->log,
             QStringList({QStringLiteral("ShowFieldDetails 136 174 0.0025 MHz"), QStringLiteral("ClearRange")}));
}

void tst_values::positionIsNoEdit() {
    qint32 added = 0;
    bool ok = false;
    mComponent->AddRecord(QStringLiteral("ChannelID_q7r"), QString(), added, ok);
    QVERIFY(ok);
    QCOMPARE(added, 2);
    mComponent->SaveForm(QStringLiteral("Advanced"));
    QVERIFY(set(QStringLiteral("CurrentChannelNr"), 2));
    QCOMPARE(get(QStringLiteral("CurrentChannelNr")), QStringLiteral("2"));
    QVERIFY(!mComponent->GetFormIsDirty());
    QVERIFY(!set(QStringLiteral("CurrentChannelNr"), 3));
    QVERIFY(!set(QStringLiteral("CurrentChannelNr"), 0));
    mComponent->DeleteRecord(QStringLiteral("ChannelID_q7r"), 2, ok);
    QCOMPARE(get(QStringLiteral("CurrentChannelNr")), QStringLiteral("1"));
}

void tst_values::gridRefreshWaitsForTheCommandAndTheBatch() {
    const QString line = QStringLiteral("RefreshGridByUIID ChannelID_q7r");
    bool ok = false;
    mComponent->BeginBatchUpdate();
    mComponent->RepeatRecord(QStringLiteral("ChannelID_q7r"), 1, QString(), ok);
    mComponent->RepeatRecord(QStringLiteral("ChannelID_q7r"), 1, QString(), ok);
    QCoreApplication::processEvents();
    QVERIFY(!mListener->log.contains(line));
    mComponent->EndBatchUpdate();
    QVERIFY(!mListener->log.contains(line));
    QCoreApplication::processEvents();
    QCOMPARE(mListener->log.count(line), 1);

    // A message box with an event loop of its own.
    mListener->clear();
    mListener->onEvent = [&](const QString &event) {
        if (!event.startsWith(QStringLiteral("MsgBox")))
            return;
        mComponent->DeleteRecord(QStringLiteral("ChannelID_q7r"), 3, ok);
        QCoreApplication::processEvents();
        QVERIFY(!mListener->log.contains(line));
    };
    QVERIFY(!set(QStringLiteral("EconomyTimer"), 999));
    mListener->onEvent = nullptr;
    QCoreApplication::processEvents();
    QCOMPARE(mListener->log.count(line), 1);
}

void tst_values::deletedNetworkInUseIsRefused() {
    qint32 added = 0;
    bool ok = false;
    mComponent->AddRecord(QStringLiteral("NetworkID"), QString(), added, ok);
    QVERIFY(ok);
    mListener->clear();
    mComponent->DeleteRecord(QStringLiteral("NetworkID"), 1, ok);
    QVERIFY(!ok);
    QCOMPARE(mListener->messages.size(), 1);
    QVERIFY2(mListener->messages.first().contains(QStringLiteral("Channel")), qPrintable(mListener->messages.first()));
    QCOMPARE(mComponent->GetNumberOfRecords(QStringLiteral("NetworkID")), 2);
    mComponent->DeleteRecord(QStringLiteral("NetworkID"), 2, ok);
    QVERIFY(ok);
}

void tst_values::sortMovesReferencesAlong() {
    qint32 added = 0;
    bool ok = false;
    for (int i = 0; i < 2; ++i)
        mComponent->AddRecord(QStringLiteral("ChannelID_q7r"), QString(), added, ok);
    const QStringList frequencies = {QStringLiteral("170"), QStringLiteral("140"), QStringLiteral("150")};
    for (qint32 record = 1; record <= 3; ++record)
        QVERIFY(set(QStringLiteral("RxFreq_q7r"), frequencies[record - 1], record));
    mComponent->SortColumn(QStringLiteral("RxFreq_q7r"), true);
    QStringList ids;
    for (qint32 record = 1; record <= 3; ++record)
        ids.append(get(QStringLiteral("ChannelID_q7r"), record));
    QCOMPARE(ids, QStringList({QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("1")}));
}

void tst_values::revertTakesBackRecordOperations() {
    QVERIFY(set(QStringLiteral("RxFreq_q7r"), QStringLiteral("150")));
    mComponent->SaveForm(QStringLiteral("Advanced"));
    qint32 added = 0;
    bool ok = false;
    mComponent->AddRecord(QStringLiteral("GroupID_q7r"), QString(), added, ok);
    mComponent->AddRecord(QStringLiteral("FilteredScanGroupChannelMemberID"), QString(), added, ok);
    QVERIFY(ok);
    mComponent->RepeatRecord(QStringLiteral("ChannelID_q7r"), 1, QString(), ok);
    QVERIFY(set(QStringLiteral("RxFreq_q7r"), QStringLiteral("160"), 2));
    mComponent->DeleteRecord(QStringLiteral("ChannelID_q7r"), 1, ok);
    QVERIFY(ok);
    mComponent->RevertFormData(QStringLiteral("Advanced"));
    QCOMPARE(get(QStringLiteral("RxFreq_q7r")), QStringLiteral("150.000000"));
    QCOMPARE(mComponent->GetNumberOfRecords(QStringLiteral("ChannelID_q7r")), 1);
    QCOMPARE(mComponent->GetNumberOfRecords(QStringLiteral("GroupID_q7r")), 0);
    QVERIFY(!mComponent->GetFormIsDirty());
    QVERIFY(mComponent->GetDataIsDirty());
}

void tst_values::lowerAccessLevelLocksFields() {
    QVERIFY(mComponent->GetFieldEnabled(QStringLiteral("RxFreq_q7r"), 1));
    QVERIFY(mComponent->SetAccessLevel(20));
    QVERIFY(!mComponent->SetAccessLevel(30));
    QVERIFY(!mComponent->GetFieldEnabled(QStringLiteral("RxFreq_q7r"), 1));
    QVERIFY(!set(QStringLiteral("RxFreq_q7r"), QStringLiteral("150")));
    QCOMPARE(get(QStringLiteral("RxFreq_q7r")), QStringLiteral("160.000000"));
}

void tst_values::newRecordsHaveNumbersOfTheirOwn() {
    fill(QStringLiteral("Advanced"));
    const auto numbers = [this](const QString &uiid) {
        QStringList values;
        for (qint32 record = 1; record <= mComponent->GetNumberOfRecords(uiid); ++record)
            values.append(get(uiid, record));
        return values.join(u' ');
    };
    for (const QString &guide : {QStringLiteral("ChannelID_q7r"), QStringLiteral("ControlStatusValue")}) {
        const QString first = get(guide);
        bool ok = false;
        mComponent->RepeatRecord(guide, 1, QString(), ok);
        QVERIFY(ok);
        qint32 added = 0;
        mComponent->AddRecord(guide, QString(), added, ok);
        QVERIFY(ok);
        QCOMPARE(numbers(guide), first == u"0" ? QStringLiteral("0 1 2") : QStringLiteral("1 2 3"));
    }
    // All else of a repeated record is copied.
    bool ok = false;
    QVERIFY(set(QStringLiteral("RxFreq_q7r"), QStringLiteral("150"), 2));
    mComponent->RepeatRecord(QStringLiteral("ChannelID_q7r"), 2, QString(), ok);
    QCOMPARE(get(QStringLiteral("RxFreq_q7r"), 3), QStringLiteral("150.000000"));
    QCOMPARE(get(QStringLiteral("ChannelID_q7r"), 3), QStringLiteral("4"));
}

void tst_values::firstCallerBurstIsTheOwnIdentityUntilItIsChanged() {
    fill(QStringLiteral("Advanced"));
    const QString identity = QStringLiteral("RxDecodeSeq1_q7r");
    const QString burst = QStringLiteral("BurstSequence1_q7r");
    QVERIFY(set(identity, QStringLiteral("12345")));
    QCOMPARE(get(burst, 1), QStringLiteral("12345"));
    QCOMPARE(get(burst, 2), QString());
    QVERIFY(set(burst, QStringLiteral("54321"), 1));
    QVERIFY(set(identity, QStringLiteral("11111")));
    QCOMPARE(get(burst, 1), QStringLiteral("54321"));
}

void tst_values::anotherBandMovesTheFrequenciesThatLieOutside() {
    const QString band = QStringLiteral("Band_q7r");
    fill(QStringLiteral("Advanced"));
    const TierData before = mComponent->state().current();
    mListener->answer = 7;
    QVERIFY(!set(band, 2, 0));
    QVERIFY(mComponent->state().current().sameValues(before));
    QVERIFY2(mListener->messages.last().contains(QStringLiteral("Channels: 1.")),
             qPrintable(mListener->messages.last()));
    mListener->answer = 6;
    mComponent->SaveForm(QString());
    QVERIFY(set(band, 2, 0)); // 400 to 470 MHz
    QVERIFY(set(QStringLiteral("TxFreq_q7r"), QStringLiteral("460")));
    const QString inside = get(QStringLiteral("RxFreq_q7r"));
    QVERIFY(inside > QStringLiteral("400") && inside < QStringLiteral("470"));
    QVERIFY(set(band, 3, 0)); // 450 to 490 MHz
    QCOMPARE(get(QStringLiteral("TxFreq_q7r")), QStringLiteral("460.000000"));
    mComponent->RevertFormData(QString());
    QVERIFY(mComponent->state().current().sameValues(before));
}

void tst_values::fixedItemsAreOfferedBeforeAnyRecord() {
    // A field of a form is filled with its list before a navigator has given it a record.
    for (const FieldDefinition &field : mComponent->dictionary().fields()) {
        if (field.kind != FieldKind::List || !field.scope.isEmpty() || get(field.id) == ValueText::undefined())
            continue;
        XArrayDB items;
        qint32 scope = 0;
        QVERIFY(mComponent->GetComboItems(field.id, 1, items, scope));
        const qint32 last = items.UpperBound(1);
        QVERIFY(mComponent->GetComboItems(field.id, 0, items, scope));
        QVERIFY2(items.UpperBound(1) == last, qPrintable(field.id));
    }
}

void tst_values::editTellsWhichFormsItMakesAvailable() {
    const auto told = [this] {
        const QStringList lines = mListener->of(QStringLiteral("EnableDisableFormItem"));
        mListener->clear();
        return lines.join(u'|');
    };
    mComponent->ChangeTier(QStringLiteral("Standard"));
    QVERIFY(told().contains(QStringLiteral("EnableDisableFormItem Control Status 0"))); // whoever asks nothing is told
    mComponent->ChangeTier(QStringLiteral("Advanced"));
    (void)told();
    QVERIFY(set(QStringLiteral("SignallingType"), 1));
    QCOMPARE(told(), QStringLiteral("EnableDisableFormItem Features 1|EnableDisableFormItem Alerts 1"));
    QVERIFY(set(QStringLiteral("TxDurationTimer"), 100));
    QCOMPARE(told(), QString());
    mComponent->RevertFormData(mComponent->GetCurrentTier());
    QCOMPARE(told(), QStringLiteral("EnableDisableFormItem Features 0|EnableDisableFormItem Alerts 0"));
    qint32 system = 0;
    bool ok = false;
    mComponent->AddRecord(QStringLiteral("SignalSystemId_q7r"), QString(), system, ok);
    QCOMPARE(told().count(QStringLiteral(" 1")), 4);
    mComponent->ReloadDefaults(mComponent->GetCurrentTier());
    QCOMPARE(told().count(QStringLiteral(" 0")), 4);
}

void tst_values::finalCheckRefusesErrorsAndAsksAboutWarnings() {
    QVERIFY(mComponent->FinalValidate());
    QVERIFY(mListener->messages.isEmpty());
    QVERIFY(set(QStringLiteral("ChannelBandwidth_q7r"), 250));
    QVERIFY(!mComponent->FinalValidate());
    const QString error =
        QStringLiteral("\nChannels, record 1, Bandwidth: Bandwidth must be 12.5 kHz while RF Compliance is set.");
    QVERIFY2(mListener->messages.takeLast().endsWith(error), "form, record and field are named");
    bool ok = true;
    mComponent->ValidateForm(QStringLiteral("usrctlChannelsKX4600"), QString(), true, ok);
    QVERIFY(!ok);
    mComponent->ValidateForm(QStringLiteral("usrctlEconomyKX4600"), QString(), true, ok);
    QVERIFY(ok);
    QVERIFY(set(QStringLiteral("ChannelBandwidth_q7r"), 125));
    QVERIFY(set(QStringLiteral("VSWRFoldbackOverride"), 1));
    for (const qint32 answer : {7, 6}) {
        mListener->answer = answer;
        QCOMPARE(mComponent->FinalValidate(), answer == 6);
    }
    QVERIFY(mListener->messages.last().contains(QStringLiteral("not protected against a bad antenna")));
}

QTEST_GUILESS_MAIN(tst_values)
#include "tst_values.moc"
