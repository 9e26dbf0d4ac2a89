#pragma once

#include "report_lines.h"
#include "report_shell.h"
#include "window_services.h"

#include <QDialog>

#include <functional>
#include <memory>

class PrinterPlatform;
class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;
class clsPrint;

// The report dialog: the user ticks forms, and their contents are printed, previewed or saved as PDF. Each form is
// loaded without being shown; between two forms the user can cancel.
class frmPrint final : public QDialog, public ReportLines {
    Q_OBJECT
  public:
    // Asks for the name of the PDF file; "" when cancelled. Gets a proposal.
    using FileNameQuestion = std::function<QString(QWidget *window, const QString &proposal)>;

    // All references outlive it.
    frmPrint(const FieldServices &services, ReportShell &shell, PrinterPlatform &printers, QWidget *owner);
    ~frmPrint() override;
    Q_DISABLE_COPY_MOVE(frmPrint)

    // Prints through this object, which outlives the dialog; without it the dialog has one of its own.
    void PrinterSettings(clsPrint &print);
    void SetFileNameQuestion(FileNameQuestion question) { mAskFileName = std::move(question); }

    // The banner: radio model, date, time and file.
    bool PrintHeaderInfo();
    bool PrintLine(const QString &Text, bool Bold, bool Columns, bool Ruled) override;
    // Prints the form of an item of the list, counted from 0. False after a failure that has been told.
    bool OpenForm(int index, bool printAll);

    // Escape and the frame's close box: as cmdCancel.
    void reject() override;

  private:
    enum class ReportEnd { Done, Failed, Cancelled };

    void buildControls();
    void connectControls();
    void fillForms();
    void cmdPrint_Click();
    void cmdPreview_Click();
    void cmdSavePdf_Click();
    void cmdSelectAll_Click();
    void cmdPrinterSettings_Click();
    void cmdCancel_Click();
    void lstForms_ItemCheck();

    // Prints into the document that has been started, and ends it.
    bool printDocument();
    [[nodiscard]] ReportEnd printReport(ReportLines &lines);
    [[nodiscard]] ReportEnd printForms();
    void showProgress(int item, int done, int all);
    void showBusy();
    void showIdle();
    void showEnd(ReportEnd end);
    [[nodiscard]] std::vector<int> checkedItems() const;
    [[nodiscard]] QString translated(const char *text) const;

    FieldServices mServices;
    ErrorReport &mErrors;
    ReportShell &mShell;
    PrinterPlatform &mPrinters;
    std::unique_ptr<clsPrint> mOwnPrint;
    clsPrint *mPrint;
    ReportLines *mLines = nullptr; // of the report that is being printed
    FileNameQuestion mAskFileName;
    bool mPrinting = false;
    bool mCancelled = false;

    QListWidget *lstForms;
    QCheckBox *chkPrintAll;
    QLabel *lblProgress;
    QPushButton *cmdPrint;
    QPushButton *cmdPreview;
    QPushButton *cmdSavePdf;
    QPushButton *cmdSelectAll;
    QPushButton *cmdPrinterSettings;
    QPushButton *cmdCancel;
};
