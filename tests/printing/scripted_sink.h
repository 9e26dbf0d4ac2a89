#pragma once

#include "page_sink.h"
#include "run_time_error.h"

// A device with given fonts and measures that fails where it is told to. What it is asked goes to a list.
class ScriptedSink final : public PageSink {
  public:
    struct Script {
        QStringList fonts{QStringLiteral("Courier")};
        qint32 failsToMeasure = 0; // the error's number
        bool failsToBegin = false;
        bool failsAtNewPage = false;
        bool failsToEnd = false;
        QStringList calls;
    };
    explicit ScriptedSink(Script &script) : mScript(script) {}

    [[nodiscard]] QStringList Fonts() const override { return mScript.fonts; }
    [[nodiscard]] PageFrame Frame() const override {
        failIf(mScript.failsToMeasure != 0, mScript.failsToMeasure);
        return {0.5, 0.5, 20, 20};
    }
    void SetFont(const QString &family, bool bold) override {
        const QString call = QStringLiteral("font ") + family + (bold ? QStringLiteral(" bold") : QString());
        if (!mScript.calls.contains(call))
            mScript.calls << call;
    }
    [[nodiscard]] double TextWidth(const QString &text) const override { return 0.2 * double(text.size()); }
    [[nodiscard]] double TextHeight() const override { return 0.4; }
    void BeginDocument() override { failIf(mScript.failsToBegin); }
    void PrintText(double /*x*/, double /*y*/, const QString &text) override { mScript.calls << text; }
    void PrintRule(double /*left*/, double /*right*/, double /*y*/) override {}
    void NewPage() override {
        failIf(mScript.failsAtNewPage);
        mScript.calls << QStringLiteral("new page");
    }
    void EndDocument() override {
        failIf(mScript.failsToEnd);
        mScript.calls << QStringLiteral("end");
    }
    void CancelDocument() override { mScript.calls << QStringLiteral("cancel"); }

  private:
    static void failIf(bool fails, qint32 number = ErrorNumber::kPrinter) {
        if (fails)
            throw RunTimeError(number, QStringLiteral("printer"), QStringLiteral("out of paper"));
    }
    Script &mScript;
};
