#pragma once

#include <QString>
#include <QStringList>

// Choosing an item by its first letters. What is typed gathers until the list loses the focus; there is no time-out.
// Letters that fit no item are dropped again.
class TypeAhead {
  public:
    // The index, from 0, of the first item that begins with what has been typed, without regard to case; 0 when
    // nothing typed is left.
    int type(const QString &typed, const QStringList &items);
    // The same after the last letter was taken back.
    int backspace(const QStringList &items);
    [[nodiscard]] bool empty() const { return mTyped.isEmpty(); }
    void clear() { mTyped.clear(); }

  private:
    int search(const QStringList &items);

    QString mTyped;
};
