#include "frm_main_wiring.h"

#include "common_error_handler.h"
#include "frm_preferences.h"
#include "product_identity.h"
#include "program_icons.h"
#include "serial_ports.h"

#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>

frmMain::Wiring::Wiring(frmMain &ownWindow, const ShellServices &services) : window(ownWindow), with(services) {
    with.process.objTransformer = &with.transformer;
    window.setCentralWidget(&area);
    nameParts();
    connectCommands();
    with.errors.SetSink(&errorSink);
}

void frmMain::Wiring::nameParts() {
    area.setObjectName(QStringLiteral("fraArea"));
    window.menuBar()->setAccessibleName(QStringLiteral("Menu bar"));
    window.statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    window.statusBar()->setAccessibleName(QStringLiteral("Status bar"));
    texts.Add(QStringLiteral("Forms"), [this](const QString &name) { tree.setAccessibleName(name); });
    texts.Add(QStringLiteral("Radio models"), [this](const QString &name) { tierButtons.setAccessibleName(name); });
    standardBar.AddButtonMenu(QStringLiteral("Open"), QStringLiteral("Open"), QStringLiteral("&Open..."), texts);
    standardBar.AddButtonMenu(QStringLiteral("Save"), QStringLiteral("Save"), QStringLiteral("&Save"), texts);
    standardBar.AddButtonMenu(QStringLiteral("Save"), QStringLiteral("SaveAs"), QStringLiteral("Save &As..."), texts);
    standardBar.AddButtonMenu(QStringLiteral("Save"), QStringLiteral("SaveSquirt"), QStringLiteral("S&quirt..."),
                              texts);
    menu.SetVisible(QStringLiteral("mnuFeature"), false);
    menu.SetVisible(QStringLiteral("mnuRecentFiles"), false);
}

void frmMain::Wiring::connectCommands() {
    // A command that has no row comes with later work and stays disabled.
    const std::pair<const char *, std::function<void()>> commands[] = {
        {"mnuNew", [this] { documentCommands.mnuNew_Click(); }},
        {"mnuOpen", [this] { documentCommands.mnuOpen_Click(); }},
        {"mnuSave", [this] { documentCommands.mnuSave_Click(); }},
        {"mnuSaveAs", [this] { documentCommands.mnuSaveAs_Click(); }},
        {"mnuSquirt", [this] { documentCommands.mnuSquirt_Click(); }},
        {"mnuRevertToSaved", [this] { documentCommands.mnuRevertToSaved_Click(); }},
        {"mnuPrint", [this] { print.mnuPrint_Click(); }},
        {"mnuPrinterSettings", [this] { print.mnuPrinterSettings_Click(); }},
        {"mnuExit", [this] { shutDown.mnuExit_Click(); }},
        {"mnuUndo", [this] { formCommands.mnuUndo_Click(); }},
        {"mnuCut", [this] { editCommands.mnuCut_Click(); }},
        {"mnuCopy", [this] { editCommands.mnuCopy_Click(); }},
        {"mnuPaste", [this] { editCommands.mnuPaste_Click(); }},
        {"mnuDelete", [this] { editCommands.mnuDelete_Click(); }},
        {"mnuSelectAll", [this] { editCommands.mnuSelectAll_Click(); }},
        {"mnuOptions", [this] { preferences.mnuOptions_Click(); }},
        {"mnuReadRadio", [this] { radio.mnuRead_Click(); }},
        {"mnuProgramRadio", [this] { radio.mnuProgram_Click(); }},
        {"mnuInterrogateRadio", [this] { radio.mnuInterrogateRadio_Click(); }},
        {"mnuDownload", [this] { download.mnuDownload_Click(); }},
        {"mnuValidateForm", [this] { formCommands.mnuValidateForm_Click(); }},
        {"mnuRevertForm", [this] { formCommands.mnuRevertForm_Click(); }},
        {"mnuAccept", [this] { formCommands.mnuAccept_Click(); }},
        {"mnuReject", [this] { formCommands.mnuReject_Click(); }},
        {"mnuContents", [this] { help.mnuContents_Click(); }},
        {"mnuWhatsThisHelp", [this] { help.mnuWhatsThisHelp_Click(); }},
        {"mnuMobilesSupport", [this] { webPages.mnuMobilesSupport_Click(); }},
        {"mnuHomePage", [this] { webPages.mnuHomePage_Click(); }},
        {"mnuAbout", [this] { about.mnuAbout_Click(); }},
        {"mnuFindField", [this] { findField.mnuFindField_Click(); }},
        {"mnuMappingsGen", [this] { mapping.mnuMappingsGen_Click(); }},
    };
    for (const auto &[name, command] : commands)
        menu.Connect(QString::fromLatin1(name), command);
    addHiddenShortcuts();
    toolBarCommands.DisableUnconnected(standardBar);
    commandStates.EnableFormCommands(false);
    commandStates.EnableRevertToSaved(false);
    recentFiles.SetClicked([this](qint32 index) { documentCommands.mnuItemsRecent_Click(index); });
    filterTabs.SetClicked([this] { navigation.tabTreeFilter_Click(); });
    area.SetResized([this] { layout.Form_Resize(); });
    tree.SetFileDropTarget(&documents);
    QObject::connect(&tree, &FormTreeWidget::NodeChosen, &tree, [this] { navigation.FormTree_NodeClick(); });
    QObject::connect(&menu.Menu(QStringLiteral("mnuEdit")), &QMenu::aboutToShow, &tree,
                     [this] { editCommands.mnuEdit_Click(); });
}

void frmMain::Wiring::showNewLanguage() {
    tiers.ShowToolTips();
    tiers.tbrTiers_ButtonClick(1);
}

void frmMain::Wiring::showPreferences() {
    const SerialPorts ports;
    frmPreferences dialog({with.transformer, with.translation, with.boxes, with.errors, ports}, &window);
    dialog.Form_Load();
    dialog.exec();
}

void frmMain::Wiring::runStandardButton(const QString &key) {
    if (key == QStringLiteral("Help"))
        help.ShowFormTopic();
    else
        toolBarCommands.Run(key);
}

void frmMain::Wiring::addHiddenShortcuts() {
    const std::pair<const char *, std::function<void()>> keys[] = {
        {"Ctrl+F", [this] { findField.mnuFindField_Click(); }},
        {"Ctrl+Shift+M", [this] { mapping.mnuMappingsGen_Click(); }},
    };
    for (const auto &[key, command] : keys) {
        const auto *shortcut = new QShortcut(QKeySequence(QString::fromLatin1(key)), &window);
        QObject::connect(shortcut, &QShortcut::activated, &window, command);
    }
}
