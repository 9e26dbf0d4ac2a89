#pragma once

#include <QObject>

class ErrorReport;
class MessageBoxes;
class PrinterPlatform;
class QPrinter;
class QWidget;
class RecordedReport;

// Shows a report's pages on the screen before they are printed, on the printer's paper.
class ReportPreview final : public QObject {
    Q_OBJECT
  public:
    // All outlive it.
    ReportPreview(PrinterPlatform &platform, MessageBoxes &boxes, ErrorReport &errors);

    // Returns when the preview has been closed.
    void Show(const RecordedReport &report, const QString &title, QWidget *window);
    // Lays the report's pages out on the printer; as often as the preview asks.
    bool Paint(const RecordedReport &report, QPrinter &printer);

  private:
    PrinterPlatform &mPlatform;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
};
