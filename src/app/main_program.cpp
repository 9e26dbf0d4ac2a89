#include "main_program.h"

#include "common_error_handler.h"
#include "component_loader.h"
#include "extended_file_dialog.h"
#include "focus_guard.h"
#include "form_factory_adapter.h"
#include "frm_main.h"
#include "load_failure.h"
#include "own_process.h"
#include "process_values.h"
#include "product_identity.h"
#include "program_icons.h"
#include "program_style.h"
#include "radio_operation_window.h"
#include "shut_down.h"
#include "splash_front.h"
#include "system_clipboard_text.h"
#include "transformer.h"
#include "translated_message_boxes.h"
#include "translation.h"

#include <QApplication>
#include <QSessionManager>

#include <cstdio>

struct MainProgram::Parts {
    Parts(ErrorReport &errorReport, QStringList commandLine, const ProgramReplacements &replacements)
        : errors(errorReport), arguments(std::move(commandLine)), focusGuard(errorReport),
          ownBoxes(translation, errorReport), ownFileDialogs(translation),
          boxes(replacements.boxes != nullptr ? *replacements.boxes : static_cast<MessageBoxes &>(ownBoxes)),
          fileDialogs(replacements.fileDialogs != nullptr ? *replacements.fileDialogs
                                                          : static_cast<FileDialogs &>(ownFileDialogs)),
          makeComponent(replacements.component) {}

    ErrorReport &errors;
    QStringList arguments;
    FocusGuard focusGuard;
    ProcessValues process;
    Translation translation;
    TranslatedMessageBoxes ownBoxes;
    ExtendedFileDialogs ownFileDialogs;
    MessageBoxes &boxes;
    FileDialogs &fileDialogs;
    SystemClipboardText clipboard;
    FormFactoryAdapter forms;
    SplashFront splash;
    OwnProcess processControl;
    std::function<std::unique_ptr<Transformer>()> makeComponent;
    std::unique_ptr<Transformer> transformer;
    std::unique_ptr<frmMain> window;
};

namespace {
void nameApplication() {
    QApplication::setApplicationName(ProductIdentity::tag());
    QApplication::setApplicationVersion(ProductIdentity::fullVersion());
    QApplication::setDesktopFileName(QStringLiteral("kx4600"));
    QApplication::setWindowIcon(loadIcon(ProgramIcon::kApplication));
    QApplication::setStyle(new ProgramStyle);
}

// Null after the user has been told; the process has then ended.
std::unique_ptr<Transformer> createTransformer(MessageBoxes &boxes, const Translation &translation,
                                               ProcessControl &processControl, ErrorReport &errors) {
    try {
        return ComponentLoader::load(QApplication::applicationDirPath());
    } catch (...) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(ErrorReport::Current().Description));
        LoadFailure(boxes, translation, processControl, errors).FailedToLoadDLL(QStringLiteral("Transformer.dll"));
        return nullptr;
    }
}

void askAtSessionEnd(frmMain &window) {
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &window, [&window](QSessionManager &session) {
        bool cancel = false;
        window.Form_QueryUnload(cancel, UnloadMode::kSessionEnds);
        if (cancel)
            session.cancel();
    });
}
} // namespace

MainProgram::MainProgram(ErrorReport &errors, const QStringList &arguments, const ProgramReplacements &replacements) {
    nameApplication();
    mParts = std::make_unique<Parts>(errors, arguments, replacements);
}

MainProgram::~MainProgram() {
    if (mParts->window != nullptr)
        mParts->window->Form_Terminate();
}

bool MainProgram::Start() {
    Parts &parts = *mParts;
    parts.transformer = parts.makeComponent
                            ? parts.makeComponent()
                            : createTransformer(parts.boxes, parts.translation, parts.processControl, parts.errors);
    if (parts.transformer == nullptr)
        return false;
    parts.window = std::make_unique<frmMain>(
        ShellServices{*parts.transformer, parts.process, parts.translation, parts.errors, parts.boxes, parts.clipboard,
                      parts.forms, parts.fileDialogs, parts.splash, parts.processControl,
                      [&parts](InterrogationType type, QWidget *owner) {
                          return runRadioOperation(parts.process, parts.translation, parts.errors, type, owner);
                      },
                      parts.arguments});
    askAtSessionEnd(*parts.window);
    // A press on a tier leaves the field, unlike one on the other tool bars.
    if (auto *tiers = parts.window->findChild<QWidget *>(QStringLiteral("tbrTiers")))
        parts.focusGuard.countAsEntered(*tiers);
    parts.window->Form_Initialize();
    if (!parts.errors.HasReported())
        parts.window->Form_Load();
    if (!parts.errors.HasReported())
        parts.window->show();
    return !parts.errors.HasReported();
}

int MainProgram::Run() {
    const int exitCode = QApplication::exec();
    return mParts->errors.HasReported() ? 1 : exitCode;
}

frmMain &MainProgram::Window() const { return *mParts->window; }

Transformer &MainProgram::Component() const { return *mParts->transformer; }
