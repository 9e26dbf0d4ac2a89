#include "enabler_collection.h"
#include "field_event.h"
#include "initialising_fields_guard.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
template <class Action>
qint32 errorNumberOf(Action &&action) {
    try {
        action();
    } catch (const RunTimeError &error) {
        return error.Number;
    }
    return 0;
}
} // namespace

class tst_FieldEvent : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void writtenParametersReachTheRaiser() {
        QString label = u"before"_s;
        bool accepted = false;
        const FieldEvent event(u"GetLabel"_s, in(u"Name"_s), out(label), out(accepted));
        const QList<FieldEvent> copies{event}; // a copy still refers to the raiser's variables
        const auto [uiid, written, result] = copies.first().unpack<QString, QString &, bool &>();
        QCOMPARE(written, u"before"_s);
        written = u"after"_s;
        result = true;
        QCOMPARE(uiid, u"Name"_s);
        QCOMPARE(label, u"after"_s);
        QVERIFY(accepted);
        QCOMPARE(event.parameter<QString>(1), u"after"_s); // read as a value too
    }

    void typesMustMatchExactly() {
        qint32 position = 3;
        const FieldEvent event(u"E"_s, in(true), out(position), in(u"literal"_s));
        QCOMPARE(errorNumberOf([&] { event.parameter<bool &>(0) = false; }), ErrorNumber::kConversion); // a value
        QCOMPARE(errorNumberOf([&] { (void)event.parameter<qint32>(0); }), ErrorNumber::kConversion);
        QCOMPARE(errorNumberOf([&] { (void)event.parameter<bool &>(1); }), ErrorNumber::kConversion);
        QCOMPARE(errorNumberOf([&] { (void)event.parameter<qint64>(1); }), ErrorNumber::kConversion);
        QCOMPARE(event.parameter<qint32>(1), 3);
    }

    void missingParametersRaiseNine() {
        const FieldEvent event(u"E"_s, in(u"Name"_s));
        QCOMPARE(errorNumberOf([&] { (void)event.unpack<QString, QString>(); }), ErrorNumber::kIndexOutOfRange);
        QCOMPARE(errorNumberOf([&] { (void)event.parameter<QString>(1); }), ErrorNumber::kIndexOutOfRange);
    }

    void innerGuardKeepsTheOuterFlag() {
        ProcessValues process;
        {
            const InitialisingFieldsGuard outer(process);
            { const InitialisingFieldsGuard inner(process); }
            QVERIFY(process.gblnInitialisingFields);
        }
        QVERIFY(!process.gblnInitialisingFields);
    }
};

QTEST_GUILESS_MAIN(tst_FieldEvent)
#include "tst_field_event.moc"
