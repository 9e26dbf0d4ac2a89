#include "component_bench.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

// What becomes of values and records besides, and what is told of it.
class tst_values : public QObject, private ComponentBench {
    Q_OBJECT

  private Q_SLOTS:
    void init() { start(); }
    void cleanup() { stop(); }

    void newRecordsHaveNumbersOfTheirOwn() {
        fill(u"Advanced"_s);
        const auto numbers = [this](const QString &uiid) {
            QStringList values;
            for (qint32 record = 1; record <= mComponent->GetNumberOfRecords(uiid); ++record)
                values.append(get(uiid, record));
            return values.join(u' ');
        };
        for (const QString &guide : {u"ChannelID_q7r"_s, u"ControlStatusValue"_s}) {
            const QString first = get(guide);
            bool ok = false;
            mComponent->RepeatRecord(guide, 1, QString(), ok);
            QVERIFY(ok);
            QVERIFY(add(guide));
            QCOMPARE(numbers(guide), first == u"0" ? u"0 1 2"_s : u"1 2 3"_s);
        }
        // All else of a repeated record is copied.
        bool ok = false;
        QVERIFY(set(u"RxFreq_q7r"_s, u"150"_s, 2));
        mComponent->RepeatRecord(u"ChannelID_q7r"_s, 2, QString(), ok);
        QCOMPARE(get(u"RxFreq_q7r"_s, 3), u"150.000000"_s);
        QCOMPARE(get(u"ChannelID_q7r"_s, 3), u"4"_s);
    }

    void firstCallerBurstIsTheOwnIdentityUntilItIsChanged() {
        fill(u"Advanced"_s);
        const QString identity = u"RxDecodeSeq1_q7r"_s;
        const QString burst = u"BurstSequence1_q7r"_s;
        QVERIFY(set(identity, u"12345"_s));
        QCOMPARE(get(burst, 1), u"12345"_s);
        QCOMPARE(get(burst, 2), QString());
        QVERIFY(set(burst, u"54321"_s, 1));
        QVERIFY(set(identity, u"11111"_s));
        QCOMPARE(get(burst, 1), u"54321"_s);
    }

    void anotherBandMovesTheFrequenciesThatLieOutside() {
        const QString band = u"Band_q7r"_s;
        fill(u"Advanced"_s);
        const TierData before = mComponent->state().current();
        mListener->answer = 7;
        QVERIFY(!set(band, 2, 0));
        QVERIFY(mComponent->state().current().sameValues(before));
        QVERIFY2(mListener->messages.last().contains(u"Channels: 1."_s), qPrintable(mListener->messages.last()));
        mListener->answer = 6;
        mComponent->SaveForm(QString());
        QVERIFY(set(band, 2, 0)); // 400 to 470 MHz
        QVERIFY(set(u"TxFreq_q7r"_s, u"460"_s));
        const QString inside = get(u"RxFreq_q7r"_s);
        QVERIFY(inside > u"400"_s && inside < u"470"_s);
        QVERIFY(set(band, 3, 0)); // 450 to 490 MHz
        QCOMPARE(get(u"TxFreq_q7r"_s), u"460.000000"_s);
        mComponent->RevertFormData(QString());
        QVERIFY(mComponent->state().current().sameValues(before));
    }

    void dependentsAreToldBeforeSetValueReturns() {
        QVERIFY(set(u"EconomyTimer"_s, u"0"_s, 0));
        const qsizetype changed = mListener->log.indexOf(u"FieldHasChanged"_s);
        const QStringList enables = mListener->log.mid(0, changed);
        QCOMPARE(enables, mListener->of(u"SetEnableDisableByUIID"_s));
        QVERIFY(enables.contains(u"SetEnableDisableByUIID EconomyDutyCycle 0"_s));
        QVERIFY(mListener->log.last().startsWith(u"LastAction Economy Timer"_s));
        mListener->clear();
        QVERIFY(set(u"RxFreq_q7r"_s, u"150"_s));
        QCOMPARE(mListener->of(u"UpdateUIFieldByUIID"_s),
                 QStringList({u"UpdateUIFieldByUIID RxFreq_q7r 1 150.000000"_s,
                              u"UpdateUIFieldByUIID TxFreq_q7r 1 150.000000"_s}));
    }

    void updatesStayAwayWhileSwitchedOff() {
        mComponent->SetProviderUpdateUIOnFieldChange(false);
        QVERIFY(set(u"RxFreq_q7r"_s, u"150"_s));
        QVERIFY(mListener->of(u"UpdateUIFieldByUIID"_s).isEmpty());
        QVERIFY(!mListener->of(u"FieldHasChanged"_s).isEmpty());
    }

    void listenerMayLeaveDuringAnEvent() {
        ComponentListener leaving;
        mComponent->AddListener(&leaving);
        mListener->onEvent = [&](const QString &) { mComponent->RemoveListener(&leaving); };
        QVERIFY(set(u"RxFreq_q7r"_s, u"150"_s));
        QVERIFY(!mListener->log.isEmpty());
        QVERIFY(leaving.log.isEmpty());
    }

    void unknownUiidIsNoError() {
        const QString id = u"economytimer"_s; // case counts
        QCOMPARE(get(id), ValueText::undefined());
        QCOMPARE(mComponent->GetLabel(id), QString());
        QCOMPARE(mComponent->GetNumberOfRecords(id), 0);
        QVERIFY(!mComponent->GetFieldEnabled(id, 0));
        QVERIFY(!set(id, 1));
        QCOMPARE(mListener->log.count(u"UIIDNotFound "_s + id), 5);
        QCOMPARE(mListener->log.size(), 5);
        QCOMPARE(mComponent->GetHelpText(id), QString());
        QCOMPARE(mListener->log.size(), 5);
    }

    // Greying an undefined value comes before hiding, and there are no scan groups in new data.
    void onlyAFieldOfTheTierIsUndefined() {
        const QString id = u"DisableDeferredCallingOnThisGroup"_s;
        mComponent->ChangeTier(u"Standard"_s);
        QCOMPARE(get(id), ValueText::undefined());
        mComponent->ChangeTier(u"Basic"_s);
        QCOMPARE(get(id), QString());
    }

    void focusShowsLimitsOfNumbersOnly() {
        mComponent->FieldGotFocus(u"RxFreq_q7r"_s);
        mComponent->FieldGotFocus(u"TxPower_q7r"_s);
        QCOMPARE(mListener->log, QStringList({u"ShowFieldDetails 136 174 0.0025 MHz"_s, u"ClearRange"_s}));
    }

    void positionIsNoEdit() {
        bool ok = false;
        QVERIFY(add(u"ChannelID_q7r"_s));
        mComponent->SaveForm(u"Advanced"_s);
        QVERIFY(set(u"CurrentChannelNr"_s, 2));
        QCOMPARE(get(u"CurrentChannelNr"_s), u"2"_s);
        QVERIFY(!mComponent->GetFormIsDirty());
        QVERIFY(!set(u"CurrentChannelNr"_s, 3));
        QVERIFY(!set(u"CurrentChannelNr"_s, 0));
        mComponent->DeleteRecord(u"ChannelID_q7r"_s, 2, ok);
        QCOMPARE(get(u"CurrentChannelNr"_s), u"1"_s);
    }

    void gridRefreshWaitsForTheCommandAndTheBatch() {
        const QString line = u"RefreshGridByUIID ChannelID_q7r"_s;
        bool ok = false;
        mComponent->BeginBatchUpdate();
        mComponent->RepeatRecord(u"ChannelID_q7r"_s, 1, QString(), ok);
        mComponent->RepeatRecord(u"ChannelID_q7r"_s, 1, QString(), ok);
        QCoreApplication::processEvents();
        QVERIFY(!mListener->log.contains(line));
        mComponent->EndBatchUpdate();
        QVERIFY(!mListener->log.contains(line));
        QCoreApplication::processEvents();
        QCOMPARE(mListener->log.count(line), 1);

        // A message box with an event loop of its own.
        mListener->clear();
        mListener->onEvent = [&](const QString &event) {
            if (!event.startsWith(u"MsgBox"_s))
                return;
            mComponent->DeleteRecord(u"ChannelID_q7r"_s, 3, ok);
            QCoreApplication::processEvents();
            QVERIFY(!mListener->log.contains(line));
        };
        QVERIFY(!set(u"EconomyTimer"_s, 999));
        mListener->onEvent = nullptr;
        QCoreApplication::processEvents();
        QCOMPARE(mListener->log.count(line), 1);
    }

    void lowerAccessLevelLocksFields() {
        QVERIFY(mComponent->GetFieldEnabled(u"RxFreq_q7r"_s, 1));
        QVERIFY(mComponent->SetAccessLevel(20));
        QVERIFY(!mComponent->SetAccessLevel(30));
        QVERIFY(!mComponent->GetFieldEnabled(u"RxFreq_q7r"_s, 1));
        QVERIFY(!set(u"RxFreq_q7r"_s, u"150"_s));
        QCOMPARE(get(u"RxFreq_q7r"_s), u"160.000000"_s);
    }

    void editTellsWhichFormsItMakesAvailable() {
        const auto told = [this] {
            const QStringList lines = mListener->of(u"EnableDisableFormItem"_s);
            mListener->clear();
            return lines.join(u'|');
        };
        mComponent->ChangeTier(u"Standard"_s);
        QVERIFY(told().contains(u"EnableDisableFormItem Control Status 0"_s)); // whoever asks nothing is told
        mComponent->ChangeTier(u"Advanced"_s);
        (void)told();
        QVERIFY(set(u"SignallingType"_s, 1));
        QCOMPARE(told(), u"EnableDisableFormItem Features 1|EnableDisableFormItem Alerts 1"_s);
        QVERIFY(set(u"TxDurationTimer"_s, 100));
        QCOMPARE(told(), QString());
        mComponent->RevertFormData(mComponent->GetCurrentTier());
        QCOMPARE(told(), u"EnableDisableFormItem Features 0|EnableDisableFormItem Alerts 0"_s);
        QVERIFY(add(u"SignalSystemId_q7r"_s));
        QCOMPARE(told().count(u" 1"_s), 4);
        mComponent->ReloadDefaults(mComponent->GetCurrentTier());
        QCOMPARE(told().count(u" 0"_s), 4);
    }

    void finalCheckRefusesErrorsAndAsksAboutWarnings() {
        QVERIFY(mComponent->FinalValidate());
        QVERIFY(mListener->messages.isEmpty());
        QVERIFY(set(u"ChannelBandwidth_q7r"_s, 250));
        QVERIFY(!mComponent->FinalValidate());
        const QString error =
            u"\nChannels, record 1, Bandwidth: Bandwidth must be 12.5 kHz while RF Compliance is set."_s;
        QVERIFY2(mListener->messages.takeLast().endsWith(error), "form, record and field are named");
        bool ok = true;
        mComponent->ValidateForm(u"usrctlChannelsKX4600"_s, QString(), true, ok);
        QVERIFY(!ok);
        mComponent->ValidateForm(u"usrctlEconomyKX4600"_s, QString(), true, ok);
        QVERIFY(ok);
        QVERIFY(set(u"ChannelBandwidth_q7r"_s, 125));
        QVERIFY(set(u"VSWRFoldbackOverride"_s, 1));
        for (const qint32 answer : {7, 6}) {
            mListener->answer = answer;
            QCOMPARE(mComponent->FinalValidate(), answer == 6);
        }
        QVERIFY(mListener->messages.last().contains(u"not protected against a bad antenna"_s));
    }
};

QTEST_GUILESS_MAIN(tst_values)
#include "tst_values.moc"
