#pragma once

#include "interrogation_type.h"
#include "process_values.h"

#include <QString>

#include <functional>

// How the window of one radio operation ended.
struct RadioContact {
    bool answered = false; // a radio has told what it is
    bool read = false;     // its data are now the present ones
    QString noRadio;       // why none could be reached, translated; "" otherwise
};

// Runs a radio operation; where it reaches no radio, the user may have others of the machine's ports interrogated. The
// port on which a radio answers is stored, otherwise the stored one stays.
class RadioPortSearch {
  public:
    using OperationWindow = std::function<RadioContact(InterrogationType)>;
    // Tells problem and offers the ports; the number of the chosen one, 0 for none.
    using PortChoice = std::function<int(const QString &problem, int storedNumber)>;

    RadioPortSearch(const ProcessValues &process, OperationWindow window, PortChoice choice);

    // True if a radio was read.
    bool Run(InterrogationType type);

  private:
    [[nodiscard]] RadioContact interrogate(int port);

    const ProcessValues &mProcess;
    OperationWindow mWindow;
    PortChoice mChoice;
};
