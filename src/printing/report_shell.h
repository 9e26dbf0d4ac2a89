#pragma once

#include "iusrfrm.h"

#include <QString>

#include <memory>
#include <vector>

struct FieldServices;

// A form of the main window's tree that can be printed.
struct ReportableForm {
    qint32 node = 0; // in the tree, from 1
    QString text;    // its parent's text, " - " and its own; its own alone at top level
    bool open = false;
};

// What the report dialog needs of the main window.
class ReportShell {
  public:
    virtual ~ReportShell() = default;
    // In the order of the tree: those that the user can open, without the groups.
    [[nodiscard]] virtual std::vector<ReportableForm> Forms() const = 0;
    // Type name of a node's form.
    [[nodiscard]] virtual QString FormKey(qint32 node) const = 0;
    // Makes the form, without a window. Raises what making it raises; the services outlive the form.
    [[nodiscard]] virtual std::unique_ptr<Iusrfrm> CreateForm(const QString &key, const FieldServices &services) = 0;
    // Nest.
    virtual void MouseHourglass() = 0;
    virtual void MouseDefault() = 0;
};
