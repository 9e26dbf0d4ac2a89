#pragma once

#include "transformer_events.h"

#include <QtGlobal>

class ComponentDialogs;
class ErrorReport;
class FormHost;
class FormNodes;
class QWidget;
class Transformer;
class WindowInputFilter;
class WindowPosition;
struct ProcessValues;

// Why the main window closes.
namespace UnloadMode {
inline constexpr qint32 kCloseBox = 0; // and the command Exit
inline constexpr qint32 kByCode = 1;   // without a question
inline constexpr qint32 kSessionEnds = 2;
} // namespace UnloadMode

// How the main window and the program end.
class ShutDown {
  public:
    struct Parts {
        QWidget &window;
        WindowPosition &position;
        ComponentDialogs &dialogs;
        FormNodes &nodes;
        FormHost &host;
        WindowInputFilter &inputFilter;
        TransformerEvents &events;
    };
    ShutDown(Transformer &transformer, ProcessValues &process, const Parts &parts, ErrorReport &errors);

    // Sets Cancel when the user wants to stay; then nothing is closed.
    void Form_QueryUnload(bool &Cancel, qint32 UnloadMode);
    void mnuExit_Click();
    // The main window's close event.
    void CloseRequested(bool &Cancel);
    // Closes all windows without a question, modal ones first.
    void CloseByCode();
    // The last call into the component. No form and no field exists any more.
    void Form_Terminate();

  private:
    void closeOtherWindows();

    Transformer &mTransformer;
    ProcessValues &mProcess;
    Parts mParts;
    ErrorReport &mErrors;
    bool mClosing = false; // decided: the close event asks no more
};
