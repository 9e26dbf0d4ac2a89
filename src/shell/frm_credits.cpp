#include "frm_credits.h"

#include "product_identity.h"
#include "program_icons.h"

#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {
constexpr QSize kBanner(360, 240);
}

frmCredits::frmCredits(const std::function<QString(const QString &)> &translate, QWidget *parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmCredits"));
    setWindowTitle(translate(QStringLiteral("Credits")));
    auto *banner = new QLabel(this);
    banner->setObjectName(QStringLiteral("Image1"));
    banner->setPixmap(loadPixmap(ProgramIcon::kSplash, kBanner, devicePixelRatioF()));
    banner->setAccessibleName(ProductIdentity::title());
    auto *made = new QLabel(translate(QStringLiteral("Made for the people who keep radio fleets on the air.")), this);
    made->setObjectName(QStringLiteral("Label1"));
    auto *with = new QLabel(translate(QStringLiteral("Built with Qt, which is used under the terms of the GNU Lesser "
                                                     "General Public License, version 3.")),
                            this);
    with->setObjectName(QStringLiteral("Label2"));
    with->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    for (QLabel *label : {banner, made, with}) {
        label->setTextFormat(Qt::PlainText);
        column->addWidget(label);
    }
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void frmCredits::mousePressEvent(QMouseEvent *event) {
    event->accept();
    accept();
}
