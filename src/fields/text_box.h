#pragma once

#include <QString>

class QLineEdit;
class QPlainTextEdit;
class QWidget;

// One of the two editing parts of a text field, behind the few operations that a field needs of it.
class TextBox {
  public:
    virtual ~TextBox() = default;
    [[nodiscard]] virtual QWidget &widget() const = 0;
    [[nodiscard]] virtual QString text() const = 0;
    virtual void setText(const QString &text) = 0;
    [[nodiscard]] virtual QString selectedText() const = 0;
    virtual void selectAll() = 0;
    // As typed by the user in place of the selection; "" removes it.
    virtual void replaceSelection(const QString &text) = 0;
};

class LineTextBox final : public TextBox {
  public:
    explicit LineTextBox(QLineEdit &edit) : mEdit(edit) {}
    [[nodiscard]] QWidget &widget() const override;
    [[nodiscard]] QString text() const override;
    void setText(const QString &text) override;
    [[nodiscard]] QString selectedText() const override;
    void selectAll() override;
    void replaceSelection(const QString &text) override;

  private:
    QLineEdit &mEdit;
};

class MultiLineTextBox final : public TextBox {
  public:
    explicit MultiLineTextBox(QPlainTextEdit &edit) : mEdit(edit) {}
    [[nodiscard]] QWidget &widget() const override;
    [[nodiscard]] QString text() const override;
    void setText(const QString &text) override;
    [[nodiscard]] QString selectedText() const override;
    void selectAll() override;
    void replaceSelection(const QString &text) override;

  private:
    QPlainTextEdit &mEdit;
};
