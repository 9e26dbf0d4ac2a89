#pragma once

#include "cls_help.h"
#include "help_field_text.h"
#include "help_whats_this.h"
#include "mod_common_help.h"

#include <QObject>

class ErrorReport;
class FormHost;
class FormNodes;
class MessageBoxes;
class Transformer;
class Translation;
struct ProcessValues;

// The help commands of the main window. F1 and Shift+F1 work in it and in a sub-form.
class HelpCommands final : public QObject {
    Q_OBJECT
  public:
    struct Parts {
        QWidget &window;
        FormHost &host;
        FormNodes &nodes;
    };
    HelpCommands(const ProcessValues &process, Transformer &transformer, const Translation &translation,
                 MessageBoxes &boxes, const Parts &parts, ErrorReport &errors);

    void mnuContents_Click();
    void mnuWhatsThisHelp_Click() { mWhatsThis.StartWhatsThisMode(); }
    void ShowWhatsThisHelp(qint32 HelpContextID) { mWhatsThis.ShowWhatsThisHelp(HelpContextID); }
    // The topic of the open form; nothing without a form.
    void ShowFormTopic();
    static constexpr int kF1Code = 112;
    // F1 alone: the topic of the field under the focus, else of the open form. With shift: What's This. True if
    // the key is used up; never without a form.
    bool Form_KeyDown(int KeyCode, Qt::KeyboardModifiers Shift);
    // The help as the main window opens it.
    [[nodiscard]] clsHelp &Help() { return mHelp; }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void showTopic(qint32 number);
    void call(HelpCommand command, const QVariant &topic);
    [[nodiscard]] qint32 activeTopic() const;

    const ProcessValues &mProcess;
    Transformer &mTransformer;
    Parts mParts;
    ErrorReport &mErrors;
    clsHelp mHelp;
    modCommonHelp mCommon;
    HelpFieldText mTexts;
    HelpWhatsThis mWhatsThis;
};
