#pragma once

#include <QStringList>

class ComboList;
class QStringListModel;
class Transformer;

// The record names in a navigator's list. Nothing is kept: every record is read again each time; the list is touched
// only where a name differs from the one on show.
class NavigatorNames {
  public:
    // The list outlives this and is filled by this alone.
    explicit NavigatorNames(ComboList &list);

    void Clear();
    // The value of the guide in each record, behind the prefix and ": " unless the prefix is "NULL". "Undefined" reads
    // as an empty value. The item of that position, from 1, is chosen; none where there are fewer.
    void Show(Transformer &component, const QString &guideUIID, const QString &prefix, qint32 position);

  private:
    void fill(const QStringList &names);

    ComboList &mList;
    QStringListModel *mModel; // owned by the list
};
