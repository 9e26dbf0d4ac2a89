#pragma once

#include "page_sink.h"
#include "printer_platform.h"
#include "text_page_sink.h"

#include <functional>
#include <memory>

// Printers without any: documents go to text pages, and what is asked of the printer is written down.
class FakePrinters final : public PrinterPlatform {
  public:
    QStringList printers{QStringLiteral("Office"), QStringLiteral("Depot 2")};
    QString defaultPrinter = QStringLiteral("Office");
    QStringList calls;         // MakeCurrent, Apply, PrintDlg, a line a call
    TextPageSink::Pages pages; // of the last document that was finished
    std::function<std::unique_ptr<PageSink>()> makeSink;
    std::function<bool(PrinterChoice &)> answerDialog = [](PrinterChoice &) { return false; };
    bool chinese = false;

    [[nodiscard]] QStringList Printers() const override { return printers; }
    [[nodiscard]] QString DefaultPrinter() const override { return defaultPrinter; }
    [[nodiscard]] QString CurrentPrinter() const override { return mCurrent; }
    void MakeCurrent(const QString &printer) override {
        mCurrent = printer;
        calls << QStringLiteral("MakeCurrent ") + printer;
    }
    void Apply(const PrinterChoice &choice) override {
        calls << QStringLiteral("Apply %1 copies, paper %2").arg(choice.Copies).arg(choice.PaperSize);
    }
    [[nodiscard]] std::unique_ptr<PageSink> OpenSink() override {
        if (makeSink)
            return makeSink();
        return std::make_unique<TextPageSink>(TextPageSink::Size(),
                                              [this](const TextPageSink::Pages &finished) { pages = finished; });
    }
    bool PrintDlg(QWidget * /*window*/, qint32 flags, PrinterChoice &choice) override {
        calls << QStringLiteral("PrintDlg %1 %2").arg(flags).arg(choice.DeviceName);
        return answerDialog(choice);
    }
    [[nodiscard]] QString WindowFont() const override { return QStringLiteral("Window Sans"); }
    [[nodiscard]] bool IsChineseLocale() const override { return chinese; }

  private:
    QString mCurrent = QStringLiteral("Office");
};
