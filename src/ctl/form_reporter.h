#pragma once

#include "common_error_handler.h"
#include "form_catalogue.h"
#include "process_values.h"
#include "tool_boxes.h"
#include "tool_session.h"
#include "translation.h"

class ReportLines;

// A form of the current tier that can be printed.
struct PrintableForm {
    QString key;     // class name
    QString caption; // its own text in the tree
    QString title;   // its parent's text, " - " and its own; its own alone at top level
};

// Prints forms without a window, as the report dialog does: from the same definitions, by the same walk.
class FormReporter final : private ErrorSink {
  public:
    // The session outlives it.
    explicit FormReporter(ToolSession &session);
    ~FormReporter() override;
    FormReporter(const FormReporter &) = delete;
    FormReporter &operator=(const FormReporter &) = delete;

    // In the order of the tree, without groups and without forms that the data makes unavailable.
    [[nodiscard]] std::vector<PrintableForm> Forms();
    // False: a line could not be printed, or the program failed; either has been told.
    [[nodiscard]] bool Print(const PrintableForm &form, ReportLines &lines, bool printAll);
    [[nodiscard]] MessageBoxes &Boxes() { return mBoxes; }

  private:
    void ShowCritical(const QString &text, const QString &title) override;
    void CloseMainWindow() override {}

    ToolSession &mSession;
    ToolBoxes mBoxes;
    Translation mTranslation; // English
    ErrorReport mErrors{false};
    ProcessValues mProcess;
    FormCatalogue mCatalogue;
};
