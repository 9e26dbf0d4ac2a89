#pragma once

#include <QHash>
#include <QString>

#include <functional>

class QWidget;
struct FieldProperties;
struct FieldServices;

// How the controls of a form are made: a maker for each control class. A class that nobody entered is refused, and so
// is every form that needs it.
class ControlRegistry {
  public:
    // The control is a child of parent, hidden or shown as a new widget is. Raises what its constructor raises.
    using Maker =
        std::function<QWidget *(const FieldServices &services, const FieldProperties &properties, QWidget *parent)>;

    // Enters the fields, grids, navigators, triggers, frames and plain frames; no call-ups.
    ControlRegistry();

    // A class that is there already gets the new maker.
    void Add(const QString &className, const Maker &maker) { mMakers.insert(className, maker); }
    [[nodiscard]] bool Knows(const QString &className) const { return mMakers.contains(className); }
    // Raises error 35601 for an unknown class.
    [[nodiscard]] QWidget *Make(const QString &className, const FieldServices &services,
                                const FieldProperties &properties, QWidget *parent) const;

  private:
    QHash<QString, Maker> mMakers;
};
