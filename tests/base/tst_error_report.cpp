#include "common_error_handler.h"
#include "failing_error_sink.h"
#include "rows.h"

#include <QTest>

#include <new>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {
// Two procedures, one calling the other, each with its tail.
class Procedures {
  public:
    explicit Procedures(ErrorReport &errors) : mErrors(errors) {}

    int Outer() try {
        Inner();
        mWentOn = true;
        return 1;
    }
    ERROR_TAIL(-1)

    void Named() try { throw RunTimeError(ErrorNumber::kConversion, QString(), u"broken"_s); }
    ERROR_TAIL_AS("TextField GetValue")

    [[nodiscard]] bool wentOn() const { return mWentOn; }

  private:
    void Inner() try { throw RunTimeError(ErrorNumber::kMissingObject, u"source"_s, u"broken"_s); }
    ERROR_TAIL()

    ErrorReport &mErrors;
    bool mWentOn = false;
};

RunTimeError current(const std::function<void()> &action) {
    try {
        action();
    } catch (...) {
        return ErrorReport::Current();
    }
    return {0, QString(), QString()};
}
} // namespace

class tst_ErrorReport : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void contextLines() {
        const QString line = u"KX4600 Programming Application: Notify_Change\r\n"_s;

        for (const auto &[before, after] : Rows<QString, QString>{
                 {"a description", u"broken"_s, line + u"broken"_s},
                 {"exactly the name", u"Notify_Change"_s, u"Notify_Change"_s},
                 {"the name in another case", u"notify_change"_s, line + u"notify_change"_s},
                 {"the name and more", u"Notify_Change failed"_s, line + u"Notify_Change failed"_s},
                 {"nothing", {}, line},
             }) {
            RunTimeError error(ErrorNumber::kBadArgument, QString(), before);
            ErrorReport::AddErrorContext(error, u"Notify_Change"_s);
            QCOMPARE(error.Description, after);
        }
    }

    void deliveredBuildReportsOnceAndGoesOn() {
        FailingErrorSink sink;
        sink.expectReport();
        ErrorReport errors(false);
        errors.SetSink(&sink);
        Procedures procedures(errors);
        QCOMPARE(procedures.Outer(), 1);
        QVERIFY(procedures.wentOn());
        QCOMPARE(sink.reports(), QStringList(u"KX4600 Programming Application: Inner\r\nbroken"_s));
        QVERIFY(sink.MainWindowClosed());
        QVERIFY(errors.HasReported());
    }

    void developmentRunTracesTheCalls() {
        FailingErrorSink sink;
        ErrorReport errors(true);
        errors.SetSink(&sink);
        Procedures procedures(errors);
        const RunTimeError error = current([&] { (void)procedures.Outer(); });
        QCOMPARE(error.Number, ErrorNumber::kMissingObject);
        QCOMPARE(error.Source, u"source"_s);
        QCOMPARE(error.Description,
                 u"KX4600 Programming Application: Outer\r\nKX4600 Programming Application: Inner\r\nbroken"_s);
        QVERIFY(!procedures.wentOn());
        QVERIFY(sink.reports().isEmpty());
    }

    void aNameOfItsOwnIsReported() {
        FailingErrorSink sink;
        sink.expectReport();
        ErrorReport errors(false);
        errors.SetSink(&sink);
        Procedures(errors).Named();
        QCOMPARE(sink.reports(), QStringList(u"KX4600 Programming Application: TextField GetValue\r\nbroken"_s));
    }

    void onlyTheFirstReportIsShown() {
        FailingErrorSink sink;
        sink.expectReport();
        ErrorReport errors(false);
        ErrorReport early(false);
        early.ReportError(ErrorNumber::kBadArgument, QString(), u"without a sink"_s);
        QVERIFY(early.HasReported());
        errors.SetSink(&sink);
        errors.ReportError(ErrorNumber::kBadArgument, QString(), u"first"_s);
        errors.ReportError(ErrorNumber::kBadArgument, QString(), u"while closing"_s);
        QCOMPARE(sink.reports(), QStringList(u"first"_s));
    }

    void foreignExceptionsGetANumber() {
        QCOMPARE(current([] { throw std::bad_alloc(); }).Number, ErrorNumber::kOutOfMemory);
        QCOMPARE(current([] { throw 7; }).Number, ErrorNumber::kBadArgument);
        const RunTimeError error = current([] { throw std::runtime_error("disk"); });
        QCOMPARE(error.Number, ErrorNumber::kBadArgument);
        QCOMPARE(error.Description, u"disk"_s);
    }
};

QTEST_GUILESS_MAIN(tst_ErrorReport)
#include "tst_error_report.moc"
