#include "common_error_handler.h"

#include "product_identity.h"

#include <cstdio>
#include <new>

ErrorReport::ErrorReport(bool developmentRun) : mDevelopmentRun(developmentRun) {}

void ErrorReport::SetSink(ErrorSink *sink) { mSink = sink; }

void ErrorReport::AddErrorContext(RunTimeError &error, const QString &ProcedureName) {
    if (error.Description == ProcedureName)
        return;
    error.Description =
        ProductIdentity::title() + QStringLiteral(": ") + ProcedureName + QStringLiteral("\r\n") + error.Description;
}

void ErrorReport::ReportError(qint32 Number, const QString &Source, const QString &Description) {
    if (mDevelopmentRun)
        throw RunTimeError(Number, Source, Description);
    std::fprintf(stderr, "error %d: %s\n", int(Number), qUtf8Printable(Description));
    if (mReported)
        return;
    mReported = true;
    if (mSink == nullptr)
        return;
    mSink->ShowCritical(Description, ProductIdentity::title());
    mSink->CloseMainWindow();
}

RunTimeError ErrorReport::Current() {
    try {
        throw;
    } catch (const RunTimeError &error) {
        return error;
    } catch (const std::bad_alloc &) {
        return {ErrorNumber::kOutOfMemory, QString(), QStringLiteral("Out of memory")};
    } catch (const std::exception &error) {
        return {ErrorNumber::kBadArgument, QString(), QString::fromUtf8(error.what())};
    } catch (...) {
        return {ErrorNumber::kBadArgument, QString(), QStringLiteral("Unknown error")};
    }
}

void ErrorReport::Tail(const char *procedure) {
    RunTimeError error = Current();
    AddErrorContext(error, QString::fromLatin1(procedure));
    ReportError(error.Number, error.Source, error.Description);
}
