#pragma once

#include <QStringList>

#include <vector>

class QAbstractButton;
class QComboBox;
class QLabel;
class QTableView;
class QWidget;

// What is wrong with the geometry of what is seen of forms: siblings that overlap, controls that leave their parent,
// texts without room, items of lists that are cut without a tip, pages with nothing on them, grids of hardly any rows.
class FormGeometry {
  public:
    // A form or any part of it; invisible widgets are passed over.
    void look(const QWidget &form, const QString &where);

    [[nodiscard]] const QStringList &faults() const { return mFaults; }
    void addFault(const QString &what) { mFaults << what; }
    void forgetFaults() { mFaults.clear(); }
    // Places where texts have least room to spare, tightest first, a line each.
    [[nodiscard]] QStringList tightest(int count) const;

  private:
    struct Tight {
        int slack; // pixels
        QString where;
    };

    // How many widgets were seen.
    int walk(const QWidget &parent);
    void lookAt(const QWidget &widget);
    void lookAtLabel(const QLabel &label);
    void lookAtButton(const QAbstractButton &button);
    void lookAtList(QComboBox &list);
    void lookAtGrid(const QTableView &grid);
    void note(int slack, const QWidget &widget, const QString &text);
    void fault(const QWidget &widget, const QString &what);

    QString mWhere;
    QStringList mFaults;
    std::vector<Tight> mTight;
};
