#include "component_bench.h"
#include "decimal_text.h"
#include "field_reader.h"
#include "rows.h"
#include "value_codec.h"
#include "xarray_db.h"

#include <QTest>

using namespace Qt::StringLiterals;

// What a field takes and refuses: chosen values, and the limits and lists of every field in every tier and version.
class tst_limits : public QObject, private ComponentBench {
    Q_OBJECT

  private Q_SLOTS:
    void init() { start(); }
    void cleanup() { stop(); }

    void valueIsTakenInItsNormalForm() {
        for (const auto &[uiid, value, expected] : Rows<QString, QVariant, QString>{
                 {"whole number as text", u"EconomyTimer"_s, u"20"_s, u"20"_s},
                 {"number", u"EconomyTimer"_s, 255, u"255"_s},
                 {"floating number", u"EconomyTimer"_s, 12.0, u"12"_s},
                 {"blanks", u"EconomyTimer"_s, u" 7 "_s, u"7"_s},
                 {"decimal point", u"RxFreq_q7r"_s, u"156.5"_s, u"156.500000"_s},
                 {"decimal comma", u"RxFreq_q7r"_s, u"156,5"_s, u"156.500000"_s},
                 {"no fraction", u"RxFreq_q7r"_s, u"136"_s, u"136.000000"_s},
                 {"6.25 kHz raster", u"RxFreq_q7r"_s, u"150.00625"_s, u"150.006250"_s},
                 {"2.5 kHz raster", u"RxFreq_q7r"_s, u"150.0025"_s, u"150.002500"_s},
                 {"list item's value", u"TxPower_q7r"_s, u"0"_s, u"0"_s},
                 {"ID tracker's text", u"RxSignalling_q7r"_s, u"67.0 Hz"_s, u"67.0 Hz"_s},
             }) {
            init();
            QVERIFY2(set(uiid, value), qPrintable(mListener->messages.join(u'\n')));
            QCOMPARE(get(uiid), expected);
            QVERIFY(mComponent->GetDataIsDirty());
            QCOMPARE(mComponent->GetSaveAllowed(), 1);
        }
    }

    void refusalNamesTheLabelAndWhatIsAllowed() {
        const QStringList timer = {u"Economy Timer"_s, u"0"_s, u"255"_s};

        for (const auto &[uiid, value, parts] : Rows<QString, QVariant, QStringList>{
                 {"above", u"EconomyTimer"_s, 256, timer},
                 {"below", u"EconomyTimer"_s, -1, timer},
                 {"no number", u"EconomyTimer"_s, u"ten"_s, timer},
                 {"empty", u"EconomyTimer"_s, QString(), timer},
                 {"infinite", u"EconomyTimer"_s, u"inf"_s, timer},
                 {"beyond 32 bits", u"EconomyTimer"_s, 1e12, timer},
                 {"outside the band", u"RxFreq_q7r"_s, u"174.0025"_s, {u"Rx Frequency"_s, u"136"_s, u"174"_s}},
                 {"off the raster", u"RxFreq_q7r"_s, u"150.001"_s, {u"Rx Frequency"_s}},
                 {"two points", u"RxFreq_q7r"_s, u"156.5.0"_s, {u"Rx Frequency"_s}},
                 {"no such item", u"TxPower_q7r"_s, 9, {u"Tx Power"_s}},
                 {"no such tone", u"RxSignalling_q7r"_s, u"68.0 Hz"_s, {u"Rx Signalling"_s}},
                 {"no such network", u"ChannelNetworkId_q7r"_s, u"32"_s, {u"Network"_s}},
             }) {
            init();
            const QString before = get(uiid);
            QVERIFY(!set(uiid, value));
            QCOMPARE(mListener->messages.size(), 1);
            for (const QString &part : parts)
                QVERIFY2(mListener->messages.first().contains(part), qPrintable(mListener->messages.first()));
            QCOMPARE(get(uiid), before);
            QVERIFY(!mComponent->GetDataIsDirty());
        }
    }

    void everyNumberKeepsItsLimits_data() { tiersAndVersions(); }

    // In stored units: least and most are taken, what is a step beyond or between two steps is not.
    void everyNumberKeepsItsLimits() {
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
            QVERIFY2(!set(field.id, DecimalText::of(limits.minimum * 10 + 5, field.decimals + 1)),
                     qPrintable(field.id));
            QCOMPARE(get(field.id), ValueCodec::shown(field, limits.minimum));
            ++tried;
        }
        QVERIFY2(tried >= 30, qPrintable(QString::number(tried)));
    }

    void everyItemGoesInAndComesOut_data() { tiersAndVersions(); }

    void everyItemGoesInAndComesOut() {
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

    void fixedItemsAreOfferedBeforeAnyRecord() {
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

  private:
    void tiersAndVersions() {
        QTest::addColumn<QString>("tier");
        QTest::addColumn<qint32>("version");
        for (const TierDefinition &tier : mDictionary->tiers()) {
            for (const VersionDefinition &version : mDictionary->versions())
                QTest::addRow("%s %s", qPrintable(tier.key), qPrintable(version.name)) << tier.key << version.level;
        }
    }

    [[nodiscard]] bool canBeSet(const FieldDefinition &field) const {
        const TierData &data = mComponent->state().current();
        return field.isStored() && !field.readOnly && field.levelIn(data.tier()) <= data.versionLevel();
    }
};

QTEST_GUILESS_MAIN(tst_limits)
#include "tst_limits.moc"
