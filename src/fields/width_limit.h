#pragma once

#include <QObject>
#include <QString>

class QLineEdit;

// Limits what the user types or pastes into a line, in characters. What code writes is never cut, and a longer text
// that code wrote stays, but does not grow.
class WidthLimit final : public QObject {
    Q_OBJECT
  public:
    explicit WidthLimit(QLineEdit &edit);
    // 0 or less: no limit.
    void setLimit(qint32 characters) { mLimit = characters; }

  private:
    void noteText();
    void cutSurplus();

    QLineEdit &mEdit;
    qint32 mLimit = 0;
    qsizetype mLengthBefore = 0; // of the text that stood before the present edit
};
