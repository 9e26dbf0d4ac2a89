#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

class ErrorReport;
class QInputMethodEvent;
class QKeyEvent;

// Filters the keys of a text box by a mask: the characters that may be typed. Works on what is typed only, also through
// an input method; pasted and dropped text does not go through it.
class clsFormatEdit final : public QObject {
    Q_OBJECT
  public:
    explicit clsFormatEdit(ErrorReport &errors);

    [[nodiscard]] QWidget *TextBox() const { return mTextBox; }
    // Watches this box instead of the one before; not owned.
    void TextBox(QWidget *box);
    // "": every key passes. Compared case-sensitively.
    [[nodiscard]] const QString &FormatMask() const { return mFormatMask; }
    void FormatMask(const QString &mask) { mFormatMask = mask; }
    // A character that is not in the mask, but whose capital is, becomes the capital.
    [[nodiscard]] bool UpperCase() const { return mUpperCase; }
    void UpperCase(bool upperCase) { mUpperCase = upperCase; }

    // The same filter for a key from another source. KeyAscii is a character code, and 0 when it was swallowed. Codes
    // below 32 pass.
    void NoTextBoxKeypress(qint32 &KeyAscii) const;
    // Each character of a text through the filter.
    [[nodiscard]] QString filtered(const QString &typed) const;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool filterKey(const QKeyEvent &event);
    bool filterCommit(const QInputMethodEvent &event);
    void sendInstead(QEvent &event);

    ErrorReport &mErrors;
    QPointer<QWidget> mTextBox;
    QString mFormatMask;
    bool mUpperCase = false;
    bool mSending = false;
};
