#pragma once

#include "common_error_handler.h"
#include "test_failure.h"

#include <QStringList>
#include <utility>

// Fails the test at an error report, unless the test has said that it expects one.
class FailingErrorSink final : public ErrorSink {
  public:
    explicit FailingErrorSink(TestFailure fail = failTest) : mFail(std::move(fail)) {}

    void expectReport() { mExpected = true; }
    [[nodiscard]] const QStringList &reports() const { return mReports; }
    [[nodiscard]] bool MainWindowClosed() const { return mClosed; }

    void ShowCritical(const QString &text, const QString & /*title*/) override {
        mReports << text;
        if (!mExpected)
            mFail(QStringLiteral("unexpected error report: ") + text);
    }
    void CloseMainWindow() override { mClosed = true; }

  private:
    TestFailure mFail;
    QStringList mReports; // the texts
    bool mExpected = false;
    bool mClosed = false;
};
