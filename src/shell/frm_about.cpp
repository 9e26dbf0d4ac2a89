#include "frm_about.h"

#include "program_icons.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr QSize kBanner(420, 280);
constexpr qreal kTitleScale = 1.3;

QLabel *line(const QString &name, const QString &text, QWidget *parent) {
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}
} // namespace

frmAbout::frmAbout(const Facts &facts, QWidget *parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(facts.title);
    auto *banner = line(QStringLiteral("Image1"), QString(), this);
    banner->setPixmap(loadPixmap(ProgramIcon::kSplash, kBanner, devicePixelRatioF()));
    banner->setAccessibleName(facts.title);
    auto *caption = line(QStringLiteral("lblCaption"), facts.title, this);
    QFont large = caption->font();
    large.setPointSizeF(large.pointSizeF() * kTitleScale);
    large.setBold(true);
    caption->setFont(large);
    auto *files = new QListWidget(this);
    files->setObjectName(QStringLiteral("List1"));
    files->setAccessibleName(facts.version);
    files->setSelectionMode(QAbstractItemView::NoSelection);
    files->addItems(facts.files);
    files->setMaximumHeight(files->sizeHintForRow(0) * int(facts.files.size()) + 2 * files->frameWidth() + 2);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(facts.closeText, QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto *column = new QVBoxLayout(this);
    column->addWidget(banner);
    column->addWidget(caption);
    column->addWidget(line(QStringLiteral("lblVersion"), facts.version, this));
    column->addWidget(line(QStringLiteral("lblAccessLevel"), facts.accessLevel, this));
    column->addWidget(files);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}
