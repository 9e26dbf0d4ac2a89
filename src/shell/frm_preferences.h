#pragma once

#include "preferences_values.h"

#include <QDialog>

class ErrorReport;
class MessageBoxes;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class SerialPorts;
class Translation;

// The modal window of the program's own settings. Made anew each time; OK stores, Cancel, Esc and the close box do not.
class frmPreferences final : public QDialog {
    Q_OBJECT
  public:
    struct Services {
        Transformer &transformer;
        const Translation &translation;
        MessageBoxes &boxes;
        ErrorReport &errors;
        const SerialPorts &ports;
    };
    frmPreferences(const Services &services, QWidget *owner);

    // Fills the window from the settings and the machine's ports; a machine without ports is told. To be called before
    // the window is shown.
    void Form_Load();

    static constexpr int kLanguageCount = 4;

  private:
    void buildWindow();
    [[nodiscard]] QLayout *portAndLanguage();
    [[nodiscard]] QLayout *options();
    [[nodiscard]] QLayout *homePage();
    [[nodiscard]] QLayout *buttonRow();
    [[nodiscard]] QGroupBox *optionGroup(const QString &name, const QString &title, const QStringList &captions,
                                         QButtonGroup &group);
    [[nodiscard]] QString translated(const char *text) const;

    [[nodiscard]] PreferencesValues chosen() const;
    void fillPorts();
    void fillLanguages();
    void showPortTip();
    void tellNoPorts();
    void OKButton_Click();
    void cmdCancel_Click() { reject(); }
    void cmdDefaultAddress_Click();
    // A port is taken as it is chosen: nothing hangs on it before OK.
    void optCommPort_Click() {}
    void cboComPort_Validate(bool & /*Cancel*/) {}

    Services mServices;
    ErrorReport &mErrors;
    PreferencesValues mStored; // the present ones stand in the controls

    QComboBox *mcboComPort; // this and the following are owned by this window
    QComboBox *mcboLanguage;
    QLineEdit *mtxtVornHome;
    QCheckBox *mchkDialog;
    QButtonGroup *moptTextAlignment;
    QButtonGroup *moptStartupPosition;
    QButtonGroup *moptAccessLevel;
    QPushButton *mcmdDefaultAddress;
};
