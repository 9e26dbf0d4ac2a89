#include "splash.h"

#include "product_identity.h"

#include <QFontInfo>
#include <QPainter>

namespace {
constexpr int kMargin = 16;
constexpr qreal kTitleScale = 1.5;
} // namespace

frmSplash::frmSplash(const QPixmap &picture) : QSplashScreen(picture) {
    setObjectName(QStringLiteral("frmSplash"));
    setAccessibleName(ProductIdentity::title());
}

void frmSplash::drawContents(QPainter *painter) {
    QFont title = font();
    title.setPointSizeF(QFontInfo(font()).pointSizeF() * kTitleScale);
    title.setBold(true);
    const QRect area = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    painter->setPen(Qt::white);
    painter->setFont(title);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignBottom, ProductIdentity::title() + u'\n');
    painter->setFont(font());
    painter->drawText(area, Qt::AlignLeft | Qt::AlignBottom, ProductIdentity::fullVersion());
}
