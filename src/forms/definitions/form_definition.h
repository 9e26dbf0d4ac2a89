#pragma once

#include <QString>
#include <QVariantMap>

#include <vector>

// One control of a form as its definition declares it. A frame's controls are its children, in reading order.
struct ControlDefinition {
    QString name; // local to the form
    QString typeName;
    QVariantMap properties; // the stored ones: those that differ from the class's defaults
    std::vector<ControlDefinition> controls;

    // The stored value or the class's default. Raises error 35601 for a key that the class does not have.
    [[nodiscard]] QVariant property(const QString &key) const;
    // Shorthands for what nearly every reader wants; an absent key gives "" and 0.6.
    [[nodiscard]] QString caption() const;
    [[nodiscard]] double labelWidthFactor() const;
    // The property ID, "Undefined" by default; "" for a class without one.
    [[nodiscard]] QString id() const;
};

struct PageDefinition {
    QString caption; // English, not translated
    std::vector<ControlDefinition> controls;
};

struct FormDefinition;

// A control in its place in the tab order.
struct PlacedControl {
    const ControlDefinition *control;
    const ControlDefinition *parent; // a frame, the tab control, or null on the form itself
    int page;                        // from 0; -1 outside the pages
    int tabIndex;                    // from 0
};

// A form: a list of controls, each tied to the data by its ID alone.
struct FormDefinition {
    QString name;                 // "usrctlStartupKX4600"
    ControlDefinition enabler;    // "ctlFormEnabler1"
    ControlDefinition tabControl; // "SSTab1"; stands on the form only if there are pages
    std::vector<PageDefinition> pages;
    std::vector<ControlDefinition> controls; // those on the form itself, outside the pages

    [[nodiscard]] qint32 helpId() const;
    // All controls in tab order, depth-first: the tab control, the pages, the form's own controls, the navigators.
    // The pointers are good for as long as the definition stays where it is.
    [[nodiscard]] std::vector<PlacedControl> placedControls() const;
};
