#pragma once

#include "page_sink.h"
#include "run_time_error.h"

// A device with given fonts and measures that fails where it is told to. What it is asked goes to a list.
class ScriptedSink final : public PageSink {
  public:
    // Where it fails: with an error number, or, where the kind does not matter, as a printer does.
    struct Faults {
        qint32 measuring = 0;
        qint32 printing = 0;
        bool beginning = false;
        bool newPage = false;
        bool end = false;
    };
    struct Script {
        QStringList fonts{QStringLiteral("Courier")};
        Faults faults;
        QStringList calls;
    };
    explicit ScriptedSink(Script &script) : mScript(script) {}

    [[nodiscard]] QStringList Fonts() const override { return mScript.fonts; }
    [[nodiscard]] PageFrame Frame() const override {
        failIf(mScript.faults.measuring != 0, mScript.faults.measuring);
        return {0.5, 0.5, 20, 20};
    }
    void SetFont(const QString &family, bool bold) override {
        const QString call = QStringLiteral("font ") + family + (bold ? QStringLiteral(" bold") : QString());
        if (!mScript.calls.contains(call))
            mScript.calls << call;
    }
    [[nodiscard]] double TextWidth(const QString &text) const override { return 0.2 * double(text.size()); }
    [[nodiscard]] double TextHeight() const override { return 0.4; }
    void BeginDocument() override { failIf(mScript.faults.beginning); }
    void PrintText(double /*x*/, double /*y*/, const QString &text) override {
        failIf(mScript.faults.printing != 0, mScript.faults.printing);
        mScript.calls << text;
    }
    void PrintRule(double /*left*/, double /*right*/, double /*y*/) override {}
    void NewPage() override {
        failIf(mScript.faults.newPage);
        mScript.calls << QStringLiteral("new page");
    }
    void EndDocument() override {
        failIf(mScript.faults.end);
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

Q_DECLARE_METATYPE(ScriptedSink::Faults)
