#include "failing_error_sink.h"

#include <utility>

FailingErrorSink::FailingErrorSink(TestFailure fail) : mFail(std::move(fail)) {}

void FailingErrorSink::ShowCritical(const QString &text, const QString & /*title*/) {
    mReports << text;
    if (!mExpected)
        mFail(QStringLiteral("unexpected error report: ") + text);
}
