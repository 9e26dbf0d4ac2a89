#pragma once

#include "access_levels.h"
#include "busy_pointer.h"
#include "command_line.h"
#include "command_states.h"
#include "component_dialogs.h"
#include "document_commands.h"
#include "document_front.h"
#include "document_shell_adapter.h"
#include "download_command.h"
#include "downloader.h"
#include "edit_commands.h"
#include "edit_shortcuts.h"
#include "event_sink.h"
#include "features_menu.h"
#include "field_details.h"
#include "file_io.h"
#include "filter_tabs.h"
#include "find_field_command.h"
#include "form_commands.h"
#include "form_host.h"
#include "form_nodes.h"
#include "form_pane.h"
#include "form_tree_widget.h"
#include "frm_main.h"
#include "green_ticks.h"
#include "help_about_windows.h"
#include "help_commands.h"
#include "help_web_pages.h"
#include "language_setup.h"
#include "load_failure.h"
#include "main_error_sink.h"
#include "main_menu.h"
#include "mapping_shell_adapter.h"
#include "pane_layout.h"
#include "preferences_command.h"
#include "print_commands.h"
#include "recent_files.h"
#include "resizing_area.h"
#include "shell_tool_bar.h"
#include "shut_down.h"
#include "splitter_bar.h"
#include "start_up.h"
#include "status_panels.h"
#include "talk_to_radio.h"
#include "tier_buttons.h"
#include "tier_drag.h"
#include "tiers.h"
#include "tool_bar_commands.h"
#include "translated_texts.h"
#include "tree_navigation.h"
#include "user_events.h"
#include "window_input_filter.h"
#include "window_position.h"
#include "window_title.h"

// The wiring diagram of the main window: its collaborators from the ground up, each with what it needs of those above.
struct frmMain::Wiring {
    Wiring(frmMain &window, const ShellServices &services);

    void connectCommands();
    // The help button opens the page of the form; every other button runs a menu command.
    void runStandardButton(const QString &key);
    // A command whose menu entry is hidden has its key all the same.
    void addHiddenShortcuts();
    void nameParts();
    void showNewLanguage();
    void showPreferences();

    frmMain &window;
    ShellServices with;
    FieldServices forForms{with.process, with.translation, with.errors, with.boxes, with.clipboard, window};

    // What everything stands on
    TranslatedTexts texts{with.translation};
    BusyPointer pointer;
    WindowInputFilter inputFilter{window};
    UserEvents userEvents{pointer, inputFilter};
    ComponentDialogs dialogs{with.transformer, with.boxes, with.translation, pointer, window, with.errors};
    LoadFailure loadFailure{with.boxes, with.translation, with.processControl, with.errors};
    WindowPosition position{window, with.transformer, with.errors};

    // Menus, bars and panels; the window owns the widgets
    MainMenu menu{*window.menuBar(), texts};
    FeaturesMenu features{*window.menuBar(), with.translation, with.errors};
    ToolBarCommands toolBarCommands{menu};
    ResizingArea &area{*new ResizingArea(&window)};
    ShellToolBar standardBar{&area,
                             QStringLiteral("tbrStandard"),
                             QStringLiteral("Standard tool bar"),
                             ShellToolBars::standardRows(),
                             texts,
                             [this](const QString &key) { runStandardButton(key); }};
    ShellToolBar radioBar{&area,
                          QStringLiteral("tbrRadio"),
                          QStringLiteral("Radio tool bar"),
                          ShellToolBars::radioRows(),
                          texts,
                          [this](const QString &key) { toolBarCommands.Run(key); }};
    StatusPanels panels{*window.statusBar()};
    FieldDetails details{with.transformer, with.process, with.translation, panels, with.errors};
    CommandStates commandStates{menu, standardBar};

    // Tree and panes
    TierButtons &tierButtons{*new TierButtons(&area)};
    FormTreeWidget &tree{*new FormTreeWidget(&area)};
    WindowTitle title{window, tree, with.transformer, with.translation, with.errors};
    FormNodes nodes{tree, with.transformer, with.translation, with.errors};
    FilterTabs filterTabs{&area, with.transformer, with.translation, with.errors};
    SplitterBar &splitter{*new SplitterBar(&area)};
    FormPane pane{&area};
    PaneLayout layout{{area, standardBar, radioBar, tierButtons, filterTabs, tree, splitter, pane}, with.errors};
    GreenTicks ticks{with.transformer, {tierButtons, nodes, filterTabs, commandStates}, with.errors};

    // The open form and what opens it
    FormHost host{forForms, {with.forms, pane, layout, nodes, ticks, pointer}};
    TreeNavigation navigation{with.transformer,
                              with.process,
                              with.translation,
                              with.boxes,
                              {nodes, filterTabs, host, pane, ticks, userEvents, pointer},
                              with.errors};
    AccessLevels levels{with.transformer, with.process, nodes, host, menu, texts, with.errors};
    FormCommands formCommands{with.transformer, with.process, host, nodes, navigation, with.errors};
    EditCommands editCommands{with.process, host, menu, with.clipboard, with.errors};
    EditShortcuts editShortcuts{window, menu, editCommands};

    // Help
    HelpCommands help{with.process, with.transformer, with.translation, with.boxes, {window, host, nodes}, with.errors};
    HelpWebPages webPages{with.transformer, with.boxes, with.errors};
    HelpAboutWindows about{with.transformer, with.translation, menu, window, with.errors};
    FindFieldCommand findField{forForms, with.forms, pointer, {window, nodes, host, pane, navigation}};

    // Documents and radio
    DocumentShellAdapter documentShell{
        {window, host, pane, nodes, filterTabs, navigation, formCommands, ticks, title, dialogs, loadFailure}};
    RecentFiles recentFiles{menu};
    clsFileIO fileIO{with.process, documentShell, with.fileDialogs, with.boxes, with.translation, with.errors};
    clsDocumentCommands documentCommands{with.process, documentShell, fileIO, recentFiles, with.boxes, with.errors};
    DocumentFront documents{documentCommands, fileIO, nodes};
    clsTalkToRadio radio{with.process, documentShell, with.boxes, with.errors,
                         [this](InterrogationType type) { return with.progressWindow(type, &window); }};
    LocalDownloader downloader;
    clsDownloadCommand download{with.process, downloader, with.boxes, with.errors};
    PrintCommands print{forForms, {with.forms, nodes, host, pointer}, window};

    // Development aids
    MappingShellAdapter mapping{
        with.process, with.boxes, with.translation, with.errors, {window, host, [this] {
                                                                      documentCommands.ResetToDefaults();
                                                                  }}};

    // Tiers, events, beginning and end
    Tiers tiers{with.transformer,
                with.translation,
                {tierButtons, menu, features, filterTabs, nodes, host, navigation, layout, levels, ticks, title, panels,
                 userEvents, loadFailure, documents},
                with.errors};
    TierDrag tierDrag{with.transformer, tierButtons, details, with.errors};
    EventSink events{with.process,
                     with.translation,
                     {navigation, tiers, host, dialogs, userEvents, pointer, panels, details, commandStates, ticks,
                      loadFailure, with.processControl, about},
                     with.errors};
    LanguageSetup language{
        with.transformer, with.translation, with.boxes, texts, with.errors, [this] { showNewLanguage(); }};
    CommandLine commandLine{with.arguments, with.boxes, with.errors};
    StartUp startUp{with.transformer,
                    {commandLine, loadFailure, language, levels, tiers, tierButtons, host, menu, pointer, documents,
                     with.splash, with.processControl, with.boxes, window},
                    with.errors};
    PreferencesCommand preferences{
        with.transformer, with.translation, {host, startUp, navigation, layout, levels, language}, with.errors, [this] {
            showPreferences();
        }};
    ShutDown shutDown{
        with.transformer, with.process, {window, position, dialogs, nodes, host, inputFilter, window}, with.errors};
    MainErrorSink errorSink{with.boxes, pointer, shutDown};
};
