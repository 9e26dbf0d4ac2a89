#pragma once

#include "common_error_handler.h"
#include "frm_main.h"
#include "iusrfrm.h"
#include "main_program.h"
#include "scripted_message_boxes.h"

#include <QTemporaryDir>

#include <functional>
#include <memory>

class FormNodes;
class Ifield;
class QTreeWidget;

// The whole program on the real component, headless, with settings and help pages of its own folder. The fullest radio
// model is shown.
class HelpBench {
  public:
    HelpBench();

    ErrorReport errors{false};
    ScriptedMessageBoxes boxes;

    [[nodiscard]] frmMain &window() { return mProgram->Window(); }
    [[nodiscard]] Transformer &component() { return mProgram->Component(); }
    // The class names of the forms in the tree that this program can build, with their captions.
    struct Form {
        QString typeName;
        QString caption;
    };
    [[nodiscard]] std::vector<Form> forms();
    // Opens it and lets it lay itself out.
    void open(const Form &form);
    // The fields of the open form that show and are enabled, in their order.
    [[nodiscard]] std::vector<Ifield *> usableFields();
    // Writes pictures in light and dark where KX4600_PICTURES names a folder, for people to look at.
    static void picture(QWidget &widget, const QString &name);

  private:
    QTemporaryDir mHome;
    std::unique_ptr<MainProgram> mProgram;
};
