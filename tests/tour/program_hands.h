#pragma once

#include <QString>
#include <QTableView>

#include <stdexcept>

class frmMain;
class QLineEdit;
class QWidget;
class Transformer;

// Something that the program did not show or do as it should.
class TourFailure : public std::runtime_error {
  public:
    explicit TourFailure(const QString &what) : std::runtime_error(what.toStdString()) {}
};

inline void require(bool held, const QString &what) {
    if (!held)
        throw TourFailure(what);
}

// A user's hands on the program's window: clicks and keys alone. What cannot be done raises TourFailure. An action that
// opens a modal window returns when that has closed.
class ProgramHands {
  public:
    ProgramHands(frmMain &window, Transformer &component) : mWindow(window), mComponent(component) {}

    // By its caption in the tree.
    void openForm(const QString &caption) const;
    void chooseTier(const QString &key) const;
    // A command of the menu, by its object name.
    void trigger(const QString &command) const;
    // The text box of a field of the open form.
    [[nodiscard]] QLineEdit &editorOf(const QString &uiid) const;
    // Replaces a text box's text; the focus stays.
    void typeOver(QLineEdit &editor, const QString &text) const;
    // The first table and the first navigator button of that name that can be seen.
    [[nodiscard]] QTableView &table() const;
    void clickCell(int row, int column) const;
    void clickButton(const QString &name) const;
    // As the fields show it.
    [[nodiscard]] QString value(const QString &uiid, qint32 record = 0) const;

  private:
    template <class Part>
    [[nodiscard]] Part &visiblePart(const QString &name) const;

    frmMain &mWindow;
    Transformer &mComponent;
};
