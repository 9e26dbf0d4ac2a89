#include "help_viewer.h"

#include "help_browser.h"
#include "program_icons.h"

#include <QAction>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>

namespace {
constexpr QSize kFirstSize(960, 660);
constexpr int kSideWidth = 270;
constexpr int kPlaceRole = Qt::UserRole;

struct ActionRow {
    const char *name;
    const char *text;
    const char *key;
    void (*run)(HelpViewer &viewer, HelpBrowser &browser);
};
constexpr std::array kActions{
    ActionRow{"actBack", "Back", "Alt+Left", [](HelpViewer &, HelpBrowser &browser) { browser.backward(); }},
    ActionRow{"actForward", "Forward", "Alt+Right", [](HelpViewer &, HelpBrowser &browser) { browser.forward(); }},
    ActionRow{"actContents", "Contents", "Alt+Home", [](HelpViewer &viewer, HelpBrowser &) { viewer.ShowContents(); }},
    ActionRow{"actSearch", "Search", "Ctrl+F", [](HelpViewer &viewer, HelpBrowser &) { viewer.ShowSearch(); }},
    ActionRow{"actLarger", "Larger Text", "Ctrl++", [](HelpViewer &, HelpBrowser &browser) { browser.zoomIn(); }},
    ActionRow{"actSmaller", "Smaller Text", "Ctrl+-", [](HelpViewer &, HelpBrowser &browser) { browser.zoomOut(); }},
};
} // namespace

HelpViewer::HelpViewer(const QString &folder, std::function<QString(const QString &)> translate, QWidget *parent)
    : QMainWindow(parent, Qt::Window), mFolder(folder), mTopics(folder), mTranslate(std::move(translate)),
      mBrowser(new HelpBrowser(this)) {
    setObjectName(QStringLiteral("frmHelp"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowIcon(loadIcon(ProgramIcon::kHelp));
    resize(kFirstSize);
    auto *splitter = new QSplitter(this);
    splitter->addWidget(sidePane());
    splitter->addWidget(mBrowser);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kSideWidth, kFirstSize.width() - kSideWidth});
    setCentralWidget(splitter);
    addActions();
    setTexts();
    fillContents();
    connect(mBrowser, &QTextBrowser::sourceChanged, this, [this] { markInContents(); });
    mBrowser->setFocus();
}

void HelpViewer::addActions() {
    auto *bar = addToolBar(QString());
    bar->setObjectName(QStringLiteral("tbrHelp"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const ActionRow &row : kActions) {
        QAction *action = bar->addAction(QString());
        action->setObjectName(QString::fromLatin1(row.name));
        action->setShortcut(QKeySequence(QString::fromLatin1(row.key)));
        connect(action, &QAction::triggered, this, [this, run = row.run] { run(*this, *mBrowser); });
    }
    QAction *back = findChild<QAction *>(QStringLiteral("actBack"));
    QAction *forward = findChild<QAction *>(QStringLiteral("actForward"));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(mBrowser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(mBrowser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
}

QWidget *HelpViewer::sidePane() {
    auto *pane = new QWidget(this);
    auto *column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    mSearch = new QLineEdit(pane);
    mSearch->setObjectName(QStringLiteral("txtHelpSearch"));
    mSearch->setClearButtonEnabled(true);
    mSearch->installEventFilter(this);
    mContents = new QTreeWidget(pane);
    mContents->setObjectName(QStringLiteral("treHelpContents"));
    mContents->setHeaderHidden(true);
    mHits = new QListWidget(pane);
    mHits->setObjectName(QStringLiteral("lstHelpHits"));
    mHits->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // long entries end in dots and have a tip
    mPages = new QStackedWidget(pane);
    mPages->addWidget(mContents);
    mPages->addWidget(mHits);
    column->addWidget(mSearch);
    column->addWidget(mPages);
    connect(mSearch, &QLineEdit::textChanged, this, [this](const QString &text) { find(text); });
    connect(mSearch, &QLineEdit::returnPressed, this, [this] { openHit(); });
    connect(mHits, &QListWidget::currentRowChanged, this, [this] { openHit(); });
    connect(mContents, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        if (item != nullptr)
            ShowPlace(item->data(0, kPlaceRole).toString());
    });
    return pane;
}

void HelpViewer::setTexts() {
    const QString help = mTranslate(QStringLiteral("Help"));
    const QString search = mTranslate(QStringLiteral("Search"));
    setWindowTitle(help);
    mBrowser->setAccessibleName(help);
    findChild<QToolBar *>()->setWindowTitle(help);
    mSearch->setPlaceholderText(search);
    mSearch->setAccessibleName(search);
    mHits->setAccessibleName(search);
    mContents->setAccessibleName(mTranslate(QStringLiteral("Contents")));
    for (const ActionRow &row : kActions) {
        auto *action = findChild<QAction *>(QString::fromLatin1(row.name));
        action->setText(mTranslate(QString::fromLatin1(row.text)));
        action->setToolTip(
            QStringLiteral("%1 (%2)").arg(action->text(), action->shortcut().toString(QKeySequence::NativeText)));
    }
}

void HelpViewer::changeEvent(QEvent *event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void HelpViewer::fillContents() {
    const QSignalBlocker quiet(mContents);
    QTreeWidgetItem *group = nullptr;
    for (const HelpTopic &topic : mTopics.all()) {
        if (topic.depth < 0)
            continue;
        auto *item = topic.depth == 0 || group == nullptr ? new QTreeWidgetItem(mContents) : new QTreeWidgetItem(group);
        item->setText(0, topic.title);
        item->setData(0, kPlaceRole, topic.place);
        if (topic.depth == 0)
            group = item;
    }
    mContents->expandAll();
}

bool HelpViewer::ShowPlace(const QString &place) {
    const QString page = place.section(u'#', 0, 0);
    if (page.isEmpty() || !QFileInfo(mFolder + u'/' + page).isFile())
        return false;
    QUrl url = QUrl::fromLocalFile(mFolder + u'/' + page);
    if (place.contains(u'#'))
        url.setFragment(place.section(u'#', 1));
    mBrowser->setSource(url);
    return true;
}

void HelpViewer::ShowSearch() {
    mSearch->setFocus(Qt::ShortcutFocusReason);
    mSearch->selectAll();
}

QString HelpViewer::Place() const {
    const QUrl url = mBrowser->source();
    return url.hasFragment() ? url.fileName() + u'#' + url.fragment() : url.fileName();
}

void HelpViewer::find(const QString &text) {
    const QSignalBlocker quiet(mHits);
    mHits->clear();
    mPages->setCurrentWidget(text.trimmed().isEmpty() ? static_cast<QWidget *>(mContents) : mHits);
    for (const HelpTopic &topic : mTopics.search(text)) {
        auto *item = new QListWidgetItem(
            topic.where.isEmpty() ? topic.title : topic.title + QStringLiteral(" (%1)").arg(topic.where), mHits);
        item->setData(kPlaceRole, topic.place);
        item->setToolTip(item->text());
    }
    if (mHits->count() == 0)
        (new QListWidgetItem(mTranslate(QStringLiteral("Nothing found")), mHits))->setFlags(Qt::NoItemFlags);
}

// The marked hit, or the first one.
void HelpViewer::openHit() {
    const int row = std::max(mHits->currentRow(), 0);
    if (mHits->item(row) != nullptr)
        ShowPlace(mHits->item(row)->data(kPlaceRole).toString());
}

void HelpViewer::markInContents() {
    const QSignalBlocker quiet(mContents);
    const QString page = mBrowser->source().fileName();
    mContents->setCurrentItem(nullptr);
    for (QTreeWidgetItemIterator item(mContents); *item != nullptr; ++item) {
        if ((*item)->data(0, kPlaceRole).toString() == page)
            mContents->setCurrentItem(*item);
    }
}

bool HelpViewer::eventFilter(QObject *watched, QEvent *event) {
    if (watched == mSearch && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Down && mPages->currentWidget() == mHits) {
        mHits->setFocus();
        mHits->setCurrentRow(std::max(mHits->currentRow(), 0));
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void HelpViewer::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QMainWindow::keyPressEvent(event);
}
