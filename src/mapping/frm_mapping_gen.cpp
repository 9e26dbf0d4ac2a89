#include "frm_mapping_gen.h"

#include "cls_control_item.h"
#include "common_error_handler.h"
#include "field_event.h"
#include "igrid.h"
#include "inavigator.h"
#include "mapping_shell.h"
#include "message_style.h"
#include "product_identity.h"
#include "string_utilities.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"
#include "window_services.h"

#include <QAction>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QUrl>

namespace {
const QString kName = QStringLiteral("Mapping Test Script Generator");
const QString kTextField = QStringLiteral("fldTextField");
const QString kGridField = QStringLiteral("fldGridField");
constexpr QSize kFirstSize(520, 600);

QPlainTextEdit *textBox(const QString &name, QWidget *parent) {
    auto *box = new QPlainTextEdit(parent);
    box->setObjectName(name);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    return box;
}

QString firstDroppedFile(const QMimeData *data) {
    for (const QUrl &url : data->urls()) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return {};
}
} // namespace

struct frmMappingGen::MenuRow {
    const char *menu;
    const char *name;
    const char *caption;
    void (*run)(frmMappingGen &window);
};

const frmMappingGen::MenuRow frmMappingGen::kMenuRows[] = {
    {"&File", "mnuFileLoad", "&Load...", [](frmMappingGen &window) { window.mnuFileLoad_Click(); }},
    {"&File", "mnuFileSave", "&Save...", [](frmMappingGen &window) { window.mnuFileSave_Click(); }},
    {"&File", "mnuNew", "&New", [](frmMappingGen &window) { window.mnuNew_Click(); }},
    {"&File", "mnuExit", "E&xit", [](frmMappingGen &window) { window.close(); }},
    {"&Initial State", "mnuInitialStateLoad", "&Load...",
     [](frmMappingGen &window) { window.mnuInitialStateLoad_Click(); }},
    {"&Initial State", "mnuInitialStateClear", "&Clear",
     [](frmMappingGen &window) { window.mnuInitialStateClear_Click(); }},
    {"&Window", "mnuDock", "&Dock", [](frmMappingGen &window) { window.mnuDock_Click(); }},
};

frmMappingGen::frmMappingGen(const Services &services)
    : QMainWindow(services.shell.Window(), Qt::Tool), mServices(services), mErrors(services.errors),
      mRecorder(services.transformer, services.boxes, services.translation, services.errors,
                [&shell = services.shell] { shell.ResetToDefaults(); }),
      mTxtComments(textBox(QStringLiteral("txtComments"), this)),
      mTxtScript(textBox(QStringLiteral("txtScript"), this)) {
    setObjectName(QStringLiteral("frmMappingGen"));
    resize(kFirstSize);
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(mTxtComments);
    splitter->addWidget(mTxtScript);
    splitter->setStretchFactor(1, 1);
    setCentralWidget(splitter);
    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    mTxtScript->installEventFilter(this);
    mTxtScript->viewport()->installEventFilter(this);
    mTxtScript->setAcceptDrops(true);
    addMenus();
    setTexts();
    connect(mTxtComments, &QPlainTextEdit::textChanged, this, [this] { txtComments_Change(); });
    SetTitle(QString());
    UpdateUI();
}

QString frmMappingGen::translated(const QString &text) const { return mServices.translation.NLSStr(text); }

QString frmMappingGen::fileFilter() const {
    return translated(QStringLiteral("Mapping Test Scripts")) + QStringLiteral(" (*.tst)|*.tst|") +
           translated(QStringLiteral("All Files")) + QStringLiteral(" (*.*)|*.*");
}

void frmMappingGen::addMenus() {
    QMenu *menu = nullptr;
    for (const MenuRow &row : kMenuRows) {
        const QString title = QString::fromLatin1(row.menu);
        if (menu == nullptr || menu->objectName() != title) {
            menu = menuBar()->addMenu(title);
            menu->setObjectName(title);
        }
        QAction *action = menu->addAction(QString::fromLatin1(row.caption));
        action->setObjectName(QString::fromLatin1(row.name));
        connect(action, &QAction::triggered, this, [this, run = row.run] { run(*this); });
    }
    findChild<QAction *>(QStringLiteral("mnuDock"))->setCheckable(true);
}

void frmMappingGen::setTexts() {
    for (const MenuRow &row : kMenuRows) {
        findChild<QMenu *>(QString::fromLatin1(row.menu))->setTitle(translated(QString::fromLatin1(row.menu)));
        findChild<QAction *>(QString::fromLatin1(row.name))->setText(translated(QString::fromLatin1(row.caption)));
    }
    for (const auto &[box, label] :
         {std::pair(mTxtComments, QStringLiteral("Purpose")), std::pair(mTxtScript, QStringLiteral("Script"))}) {
        box->setAccessibleName(translated(label));
        box->setPlaceholderText(translated(label));
    }
    setWindowTitle(translated(kName) + (mShownName.isEmpty() ? QString() : QStringLiteral(" - ") + mShownName) +
                   QStringLiteral(" (%1)").arg(ProductIdentity::fullVersion()));
}

void frmMappingGen::changeEvent(QEvent *event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void frmMappingGen::UpdateUI() try { clsMappingGen::GetAsTextBox(*mTxtScript, mRecorder.UICollection()); }
ERROR_TAIL()

void frmMappingGen::SetTitle(const QString &FileName) try {
    statusBar()->clearMessage();
    mShownName = MappingNames::withoutFolder(TrimBlanks(FileName));
    if (!mShownName.isEmpty())
        statusBar()->showMessage(mShownName);
    setTexts();
}
ERROR_TAIL()

void frmMappingGen::txtComments_Change() try {
    mRecorder.Comments() = mTxtComments->toPlainText().split(u'\n');
    UpdateUI();
}
ERROR_TAIL()

void frmMappingGen::showComments() {
    const QSignalBlocker quiet(mTxtComments);
    mTxtComments->setPlainText(mRecorder.Comments().join(u'\n'));
}

void frmMappingGen::MarkOriginalValue(const std::shared_ptr<clsControlItem> &objCtrlItem,
                                      const ::FieldEvent &event) try {
    Ifield &field = objCtrlItem->Field();
    const bool isText = field.Ifield_GetTypeName() == kTextField;
    const bool isGrid = objCtrlItem->FieldTypeName() == kGridField;
    const bool changed = event.name() == QStringLiteral("Change") || event.name() == QStringLiteral("Click");
    const bool entered = event.name() == QStringLiteral("RowSelectionChanged") || (changed && !isGrid && !isText) ||
                         (event.name() == QStringLiteral("ManualValidate") && isText);
    if (entered)
        mOriginal = {field.Ifield_GetUIID(), QString::number(field.Ifield_GetRecordNr()),
                     ValueText::of(field.Ifield_GetValue())};
}
ERROR_TAIL()

void frmMappingGen::FieldEvent(const std::shared_ptr<clsControlItem> &objCtrlItem, const ::FieldEvent &event) {
    ValueChanged(objCtrlItem, event.name());
}

void frmMappingGen::ValueChanged(const std::shared_ptr<clsControlItem> &item, const QString &name) try {
    Ifield &field = item->Field();
    const bool isText = field.Ifield_GetTypeName() == kTextField;
    if ((name == QStringLiteral("Change") && !isText) || (name == QStringLiteral("ManualValidate") && isText) ||
        name == QStringLiteral("Click")) {
        recordValue(field);
        return;
    }
    static const QStringList kCommands{QStringLiteral("Add"), QStringLiteral("Delete"), QStringLiteral("Insert"),
                                       QStringLiteral("Repeat")};
    const QString command = name.section(QStringLiteral("Record"), 0, 0);
    if (!kCommands.contains(command))
        return;
    if (name == command + QStringLiteral("RecordNavigator")) {
        const auto &navigator = item->as<Inavigator>();
        mRecorder.UIFields() << MappingLine::ofRecord(
            command,
            {navigator.Inavigator_GuideUIID(), navigator.Inavigator_GridID(), navigator.Inavigator_Position()});
    } else if (name == command + QStringLiteral("Record")) {
        const auto &grid = item->as<Igrid>();
        mRecorder.UIFields() << MappingLine::ofRecord(command, {grid.Igrid_GetUIIDList().section(u'|', 0, 0),
                                                                grid.Igrid_GetGridID(), field.Ifield_GetRecordNr()});
    } else {
        return;
    }
    UpdateUI();
}
ERROR_TAIL()

// Only what the component has taken, and not twice in a row.
void frmMappingGen::recordValue(Ifield &field) {
    const QString uiid = field.Ifield_GetUIID();
    const qint32 record = field.Ifield_GetRecordNr();
    const QString stored = TrimBlanks(ValueText::of(mServices.transformer.GetValue(uiid, record)));
    const QString shown = TrimBlanks(ValueText::of(field.Ifield_GetValue()));
    if (stored != shown || shown == mLastValue)
        return;
    mRecorder.UIFields() << MappingLine::ofValue({uiid, record, shown});
    UpdateUI();
    mLastValue = shown;
}

bool frmMappingGen::frmMainResetCall(bool blnReset) try {
    mRecorder.ClearDetails();
    if (blnReset)
        mServices.transformer.ResetDatabase();
    UpdateUI();
    return true;
}
ERROR_TAIL(false)

bool frmMappingGen::RevertForm() try {
    QStringList &lines = mRecorder.UIFields();
    lines.resize(std::min(lines.size(), mSavedLines));
    UpdateUI();
    return true;
}
ERROR_TAIL(false)

bool frmMappingGen::SaveForm() try {
    mSavedLines = mRecorder.UIFields().size();
    return true;
}
ERROR_TAIL(false)

void frmMappingGen::load(const QString &fileName) {
    mRecorder.FileLoad(fileName, false);
    UpdateUI();
    showComments();
    SetTitle(fileName);
}

void frmMappingGen::mnuFileLoad_Click() try {
    if (const auto name =
            mServices.shell.ChooseFile({translated(QStringLiteral("Open Test Script")), fileFilter()}, this))
        load(*name);
}
ERROR_TAIL()

void frmMappingGen::mnuFileSave_Click() try {
    if (!mServices.shell.IsFormLoaded() || !mServices.shell.FinalValidation())
        return;
    const auto name =
        mServices.shell.ChooseFile({translated(QStringLiteral("Save Test Script")), fileFilter(), true}, this);
    if (!name)
        return;
    if (!mRecorder.FileSave(*name)) {
        mServices.boxes.TranslateMsgBox(QStringLiteral("The file %0:S could not be written."), MessageStyle::kCritical,
                                        kName, *name);
        return;
    }
    UpdateUI();
    SetTitle(*name);
}
ERROR_TAIL()

bool frmMappingGen::hasData() { return !mRecorder.InitialStateFile().isEmpty() || !mRecorder.UIFields().isEmpty(); }

void frmMappingGen::mnuNew_Click() try {
    if (hasData() && mServices.boxes.TranslateMsgBox(
                         QStringLiteral("If you continue your mapping test script generation output will be "
                                        "lost.  Are you sure you want to continue?"),
                         MessageStyle::kYesNo + MessageStyle::kQuestion, kName, QString()) == MessageAnswer::kNo)
        return;
    mRecorder.ResetToDefaults();
    mSavedLines = 0;
    showComments();
    SetTitle(QString());
    UpdateUI();
}
ERROR_TAIL()

void frmMappingGen::mnuInitialStateLoad_Click() try {
    if (const auto name =
            mServices.shell.ChooseFile({translated(QStringLiteral("Open Test Script")), fileFilter()}, this))
        LoadInitialState(*name);
}
ERROR_TAIL()

void frmMappingGen::LoadInitialState(const QString &FileName) {
    if (hasData())
        mRecorder.ClearDetails();
    mRecorder.ReadFile(FileName, true);
    mRecorder.ExecuteFields(true);
    mRecorder.InitialStateFile(FileName);
    UpdateUI();
    mServices.transformer.ResetDatabase();
}

void frmMappingGen::mnuInitialStateClear_Click() try {
    mRecorder.InitialStateFile(QString());
    UpdateUI();
}
ERROR_TAIL()

void frmMappingGen::mnuDock_Click() try {
    mDocked = !mDocked;
    findChild<QAction *>(QStringLiteral("mnuDock"))->setChecked(mDocked);
    if (mDocked)
        dock();
}
ERROR_TAIL()

// To the right of the main window; over its right edge where the screen ends there.
void frmMappingGen::dock() {
    const QRect main = mServices.shell.Window()->frameGeometry();
    const int free = screen()->availableGeometry().right() - main.right();
    const int left = free >= width() ? main.right() + 1 : main.right() + 1 - width();
    setGeometry(left, main.top(), width(), main.height());
}

// A docked window that the user moves floats again.
void frmMappingGen::moveEvent(QMoveEvent *event) {
    QMainWindow::moveEvent(event);
    if (mDocked && event->spontaneous()) {
        mDocked = false;
        findChild<QAction *>(QStringLiteral("mnuDock"))->setChecked(false);
    }
}

// The script box: each key press is swallowed, and only files can be dropped.
bool frmMappingGen::eventFilter(QObject *watched, QEvent *event) try {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
        return true;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop: {
        auto &drop = static_cast<QDropEvent &>(*event);
        const QString file = firstDroppedFile(drop.mimeData());
        drop.setAccepted(!file.isEmpty());
        if (event->type() == QEvent::Drop && !file.isEmpty())
            load(file);
        return true;
    }
    default:
        return QMainWindow::eventFilter(watched, event);
    }
}
ERROR_TAIL(false)
