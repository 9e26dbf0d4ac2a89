#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

// The field that holds the focus, in each window: it keeps its place while another window is active.
class EnteredFields {
  public:
    // The window that a widget belongs to; a popup counts as its parent's window.
    [[nodiscard]] static QWidget *windowOf(QWidget *widget);

    // Null where no field of the window holds the focus, or the field has been destroyed.
    [[nodiscard]] QWidget *in(const QWidget *window) const;
    // Null: none.
    void set(QWidget *window, QWidget *field);

  private:
    struct Entry {
        QPointer<QWidget> window;
        QPointer<QWidget> field;
    };
    std::vector<Entry> mEntries;
};
