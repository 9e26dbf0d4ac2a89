#pragma once

#include "field_host.h"
#include "tab_host.h"

#include <memory>
#include <unordered_map>
#include <vector>

class ControlRegistry;
class QTabWidget;
class QWidget;
struct ControlDefinition;
struct FieldServices;
struct FormDefinition;
struct PlacedControl;

// The controls of one form, made from its definition and held in its order. The widgets belong to the form, the hosts
// to this.
class FormControls {
  public:
    // Makes every control as a child of form, in tab order, and sets the focus chain. Raises error 35601 if there is a
    // control of a class that the registry does not know; then controls made so far stay children of form.
    void Build(const FormDefinition &definition, const FieldServices &services, const ControlRegistry &registry,
               QWidget &form);

    [[nodiscard]] const HostControls &All() const { return mAll; }
    [[nodiscard]] const std::vector<std::unique_ptr<FieldHost>> &Hosts() const { return mHosts; }
    // Null on a form without pages.
    [[nodiscard]] TabHost *Tab() const { return mTab; }
    [[nodiscard]] QTabWidget *TabWidget() const { return mTabWidget; }
    // The innermost control that the widget is part of; null for none.
    [[nodiscard]] HostControl *ControlOf(const QWidget *widget) const;
    // Hides the pages on which nothing is visible, and shows the others.
    void HideEmptyPages();

  private:
    void addTab(const FormDefinition &definition, const PlacedControl &placed, QWidget &form);
    void addControl(const QString &file, const PlacedControl &placed, const FieldServices &services,
                    const ControlRegistry &registry, QWidget &form);
    void enter(std::unique_ptr<FieldHost> host, const ControlDefinition &definition);
    [[nodiscard]] QWidget &parentOf(const PlacedControl &placed, QWidget &form) const;
    // The grids look for their neighbours on the form.
    void introduceGrids() const;
    void chainFocus() const;

    std::vector<std::unique_ptr<FieldHost>> mHosts;
    HostControls mAll;
    std::unordered_map<const ControlDefinition *, FieldHost *> mByDefinition;
    std::unordered_map<const QWidget *, HostControl *> mByWidget;
    TabHost *mTab = nullptr;
    QTabWidget *mTabWidget = nullptr; // owned by the form
};
