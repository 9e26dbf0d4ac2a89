#pragma once

#include "common_error_handler.h"
#include "main_program.h"
#include "scripted_message_boxes.h"

#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class DataForm;
class HostControl;
class Ifield;
class frmMain;

// The whole program with its real component, started on data of its own: no settings, no journal, and the help pages of
// the build. A message box that the test does not expect fails it.
class ProgramBench {
  public:
    // component: what stands in for the plug-in; none: the plug-in. language: as the setting counts them, 1 English.
    explicit ProgramBench(const std::function<std::unique_ptr<Transformer>()> &component = {}, qint32 language = 1);
    explicit ProgramBench(qint32 language) : ProgramBench({}, language) {}
    // On a tier: "Basic", "Standard", "Advanced".
    explicit ProgramBench(const QString &tier);
    ~ProgramBench();
    Q_DISABLE_COPY_MOVE(ProgramBench)

    ScriptedMessageBoxes boxes;
    ErrorReport errors{false};

    [[nodiscard]] frmMain &window() const;
    [[nodiscard]] Transformer &component() const;
    void chooseTier(const QString &key);

    // The class names and captions of the forms in the tree.
    struct Form {
        QString typeName;
        QString caption;
    };
    [[nodiscard]] std::vector<Form> forms() const;
    // Opens it by its class name, whether it is available or not, and lets it lay itself out.
    void open(const Form &form) const;
    // By its caption in the tree, with a click. False if the tree has no such node; fails the test if the click opened
    // something else.
    [[nodiscard]] bool openForm(const QString &caption);
    [[nodiscard]] DataForm *form() const;

    // Of the open form; null for a name that it does not have.
    [[nodiscard]] HostControl *control(const QString &name) const;
    [[nodiscard]] Ifield *field(const QString &name) const;
    [[nodiscard]] QWidget *widget(const QString &name) const;
    // A control of that class has one value.
    [[nodiscard]] static bool isValue(const QString &typeName);
    // Those with a value that show and are enabled, in their order.
    [[nodiscard]] std::vector<Ifield *> usableFields() const;
    // A part of a control, by its object name.
    template <class Part>
    [[nodiscard]] Part &part(const QString &control, const char *name) const {
        const QWidget *owner = widget(control);
        auto *found = owner == nullptr ? nullptr : owner->findChild<Part *>(QLatin1String(name));
        if (found == nullptr)
            qFatal("%s has no part %s", qPrintable(control), name);
        return *found;
    }

    [[nodiscard]] QString value(const QString &uiid, qint32 record = 1) const;
    // Fails the test if the component refuses it.
    void setValue(const QString &uiid, qint32 record, const QVariant &value) const;

    // A further record of every kind that the tier has, so that each form has something to show and may be opened.
    void addRecords() const;

    // Writes pictures in light and dark where KX4600_PICTURES names a folder, for people to look at.
    static void picture(QWidget &widget, const QString &name);

  private:
    QTemporaryDir mHome;
    std::unique_ptr<MainProgram> mProgram;
};
