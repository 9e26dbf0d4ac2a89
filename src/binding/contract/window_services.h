#pragma once

#include <QString>
#include <QVariant>

class QWidget;
class ErrorReport;
class Translation;
struct ProcessValues;

// The message boxes of the window side. Styles and answers: message_style.h.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    // A plain box: the texts as they are.
    virtual qint32 MsgBox(const QString &Text, qint32 Buttons, const QString &Title) = 0;
    // The translated box: prompt and title are translated, the placeholders filled by the parts of Parameters (joined
    // by "|"), the prompt padded with blanks to 50 characters. An empty title is the application's.
    virtual qint32 TranslateMsgBox(const QString &Prompt, qint32 Buttons, const QString &Title,
                                   const QString &Parameters) = 0;
};

// The clipboard's text, without the widget library behind it.
class ClipboardText {
  public:
    virtual ~ClipboardText() = default;
    [[nodiscard]] virtual bool HasText() const = 0;
    [[nodiscard]] virtual QString Text() const = 0;
    virtual void SetText(const QString &text) = 0;
};

// What fields and enabler ask of the main window. There is always one; a test or a report gives its own.
class FormShell {
  public:
    virtual ~FormShell() = default;
    // Not 0: captions are aligned to the right.
    [[nodiscard]] virtual qint32 TextAlignment() const = 0;
    // True for the whole length of OpenForm.
    [[nodiscard]] virtual bool ChangingForms() const = 0;
    // Type name of the main window's open form, and its title; "" when there is none.
    [[nodiscard]] virtual QString LoadedFormTypeName() const = 0;
    [[nodiscard]] virtual QString LoadedFormTitle() const = 0;
    // The main window, handed through to the component; null without one.
    [[nodiscard]] virtual QWidget *MainWindow() const = 0;
    virtual void ShowWhatsThisHelp(qint32 HelpContextID) = 0;
    // The drag text in the status bar, from the start of a field's drag to its completion. id is the UIID of a field
    // or the caption of a frame.
    virtual void StartDrag(const QString &id, const QString &typeName) = 0;
    virtual void FinishedDrag() = 0;
    // While true the component's messages are answered with 6 (yes) and not shown.
    virtual void SilentMode(bool silent) = 0;
};

// What every field and form is made with. All references outlive it.
struct FieldServices {
    ProcessValues &process;
    const Translation &translation;
    ErrorReport &errors;
    MessageBoxes &boxes;
    ClipboardText &clipboard;
    FormShell &shell;
};
