#pragma once

#include <QString>

// What a control adds that opens another form in a window of its own.
class SubFormCallUp {
  public:
    virtual ~SubFormCallUp() = default;
    // Class name of that form.
    [[nodiscard]] virtual QString CalledForm() const = 0;
    // Opens it with the focus on the control of that name, "" for the first one, and returns when it has closed.
    virtual void CallUp(const QString &firstControl) = 0;
};
