#pragma once

#include <QObject>

#include <functional>

class ErrorReport;
class FormHost;
class FormNodes;
class HelpFieldText;
class Ifield;
struct ProcessValues;

// What's This: the help of one field in a small window beside it, with a link to its place in the help.
class HelpWhatsThis final : public QObject {
    Q_OBJECT
  public:
    // showTopic opens the help at a number.
    HelpWhatsThis(const ProcessValues &process, const FormHost &host, FormNodes &nodes, const HelpFieldText &texts,
                  ErrorReport &errors, std::function<void(qint32)> showTopic);
    ~HelpWhatsThis() override;
    Q_DISABLE_COPY_MOVE(HelpWhatsThis)

    // The help of the field under the focus, if that is its number or the number is 0; else the topic in the help.
    void ShowWhatsThisHelp(qint32 HelpContextID);
    // The next click tells what is under it. Returns when the mode has ended. Nothing without a form.
    void StartWhatsThisMode();

  protected:
    // Answers, for fields, the questions that the mode asks of widgets, and follows the link of the small window.
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    [[nodiscard]] static Ifield *fieldAt(QObject *widget);
    bool answer(QObject *widget, QEvent &event);
    void focusTree();
    void show(const QPoint &place, const QString &text, qint32 number, QWidget *widget) const;

    const ProcessValues &mProcess;
    const FormHost &mHost;
    FormNodes &mNodes;
    const HelpFieldText &mTexts;
    ErrorReport &mErrors;
    std::function<void(qint32)> mShowTopic;
};
