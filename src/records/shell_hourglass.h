#pragma once

class FormShell;
class TransformerEvents;

// The main window's hourglass for a scope; nothing where the form stands in no window that hears the component, as in
// a report.
class ShellHourglass {
  public:
    // The shell outlives this.
    explicit ShellHourglass(FormShell &shell);
    ~ShellHourglass();
    ShellHourglass(const ShellHourglass &) = delete;
    ShellHourglass &operator=(const ShellHourglass &) = delete;

  private:
    TransformerEvents *mWindow;
};
