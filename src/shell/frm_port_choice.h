#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;
class SerialPorts;
class Translation;

// Offers the machine's serial ports where no radio could be reached, each with its device and, of a USB adapter, maker
// and product. Accepted: Interrogate was chosen.
class frmPortChoice final : public QDialog {
    Q_OBJECT
  public:
    // problem: why it is shown, translated. storedNumber: the port that was tried.
    frmPortChoice(const Translation &translation, const SerialPorts &ports, const QString &problem, int storedNumber,
                  QWidget *owner);

    // Of the selected port; 0 where none is selected.
    [[nodiscard]] int PortNumber() const;

  private:
    void buildWindow(const QString &problem);
    void showPorts();

    const Translation &mTranslation;
    const SerialPorts &mPorts;
    int mStoredNumber;
    QLabel *lblNoPorts;
    QTreeWidget *lstPorts;
    QPushButton *cmdInterrogate;
};
