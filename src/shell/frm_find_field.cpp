#include "frm_find_field.h"

#include "common_error_handler.h"
#include "find_hit_delegate.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {
constexpr QSize kFirstSize(560, 420);
}

frmFindField::frmFindField(Services services, QWidget *parent)
    : QDialog(parent, Qt::Tool), mServices(std::move(services)), mErrors(mServices.errors),
      mTxtSearch(new QLineEdit(this)), mCmdFindLabel(new QPushButton(this)), mLstOutput(new QListWidget(this)) {
    setObjectName(QStringLiteral("frmFindField"));
    resize(kFirstSize);
    mTxtSearch->setObjectName(QStringLiteral("txtSearch"));
    mCmdFindLabel->setObjectName(QStringLiteral("cmdFindLabel"));
    mCmdFindLabel->setDefault(true); // Enter in the search text
    mLstOutput->setObjectName(QStringLiteral("lstOutput"));
    mLstOutput->setItemDelegate(new FindHitDelegate(mLstOutput));
    mLstOutput->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *row = new QHBoxLayout;
    row->addWidget(mTxtSearch);
    row->addWidget(mCmdFindLabel);
    auto *column = new QVBoxLayout(this);
    column->addLayout(row);
    column->addWidget(mLstOutput);
    setTexts();
    connect(mCmdFindLabel, &QPushButton::clicked, this, [this] { cmdFindLabel_Click(); });
    connect(mLstOutput, &QListWidget::itemClicked, this, [this] { lstOutput_Click(); });
    connect(mLstOutput, &QListWidget::itemActivated, this, [this] { lstOutput_DblClick(); });
}

void frmFindField::setTexts() {
    setWindowTitle(mServices.translate(QStringLiteral("Find Field")));
    mTxtSearch->setAccessibleName(mServices.translate(QStringLiteral("Label or name of a field")));
    mTxtSearch->setPlaceholderText(mTxtSearch->accessibleName());
    mCmdFindLabel->setText(mServices.translate(QStringLiteral("&Find")));
    mLstOutput->setAccessibleName(mServices.translate(QStringLiteral("Fields found")));
}

// What was found names forms and fields in the language of that time.
void frmFindField::changeEvent(QEvent *event) {
    QDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    setTexts();
    mLstOutput->clear();
}

void frmFindField::ShowAgain() {
    show();
    activateWindow();
    mTxtSearch->setFocus();
    mTxtSearch->selectAll();
}

void frmFindField::cmdFindLabel_Click() try {
    mLstOutput->clear();
    for (const QString &line : mServices.search(mTxtSearch->text())) {
        auto *item = new QListWidgetItem(line, mLstOutput);
        item->setToolTip(QString(line).replace(u'\t', QStringLiteral("   ")));
    }
}
ERROR_TAIL()

void frmFindField::lstOutput_DblClick() try {
    const QListWidgetItem *item = mLstOutput->currentItem();
    auto hit = item == nullptr ? std::nullopt : FindFieldHit::FromLine(item->text());
    if (!hit)
        return;
    hit->nth = int(mLstOutput->findItems(item->text(), Qt::MatchExactly).indexOf(item));
    mServices.open(*hit);
}
ERROR_TAIL()
