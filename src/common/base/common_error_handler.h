#pragma once

#include "run_time_error.h"

#include <exception>

// What ReportError needs of the window side: one critical box, and the main window closing.
class ErrorSink {
  public:
    virtual ~ErrorSink() = default;
    // A plain critical box with one OK button; neither text is translated. Returns when the user has closed it.
    virtual void ShowCritical(const QString &text, const QString &title) = 0;
    // Closes the main window without a question; the process ends with exit code 1 when the stack has unwound.
    virtual void CloseMainWindow() = 0;
};

// The common report of unexpected failures. Each procedure with logic ends in ERROR_TAIL, which calls Tail().
// One object a process (or a test), made where everything meets and handed in by reference under the name mErrors.
class Q_DECL_EXPORT ErrorReport {
  public:
    // A development run raises every error again, so that each outer tail adds its line and the debugger stops at it.
    explicit ErrorReport(bool developmentRun);

    void SetSink(ErrorSink *sink); // not owned; null: errors go to standard error only
    [[nodiscard]] bool DevelopmentRun() const { return mDevelopmentRun; }
    // True from the first report on: later errors, raised while the program closes, go to standard error only.
    [[nodiscard]] bool HasReported() const { return mReported; }

    // Puts "<application title>: <ProcedureName>" and a line break before the description, unless the description is
    // exactly the procedure's name.
    static void AddErrorContext(RunTimeError &error, const QString &ProcedureName);
    void ReportError(qint32 Number, const QString &Source, const QString &Description);

    // To be called in a catch block: turns the current exception into a RunTimeError (std::bad_alloc: number 31001,
    // any other: number 5), adds the context and reports it. Throws only in a development run.
    void Tail(const char *procedure);
    // The current exception as a RunTimeError. To be called in a catch block.
    [[nodiscard]] static RunTimeError Current();

  private:
    ErrorSink *mSink = nullptr;
    bool mDevelopmentRun;
    bool mReported = false;
};

// The error tail of a member function written as a function-try-block; the class has a member "ErrorReport &mErrors".
// The optional argument is the default result. ERROR_TAIL_AS names the procedure itself where that differs.
#define ERROR_TAIL(...)                                                                                                \
    catch (...) {                                                                                                      \
        mErrors.Tail(__func__);                                                                                        \
        return __VA_ARGS__;                                                                                            \
    }
#define ERROR_TAIL_AS(procedure, ...)                                                                                  \
    catch (...) {                                                                                                      \
        mErrors.Tail(procedure);                                                                                       \
        return __VA_ARGS__;                                                                                            \
    }
