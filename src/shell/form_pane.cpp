#include "form_pane.h"

#include "twips.h"

#include <QGroupBox>
#include <QScrollBar>

#include <array>

namespace {
constexpr Twips kFrameMargin{100};
constexpr Twips kViewPortMargin{350};

QScrollBar *scrollBar(Qt::Orientation orientation, QWidget *parent, const QString &name, const QString &accessible) {
    auto *bar = new QScrollBar(orientation, parent);
    bar->setObjectName(name);
    bar->setAccessibleName(accessible);
    bar->hide();
    return bar;
}
} // namespace

FormPane::FormPane(QWidget *parent)
    : mPicMainFrame(new QWidget(parent)), mFrame1(new QGroupBox(mPicMainFrame)),
      mPicInternalFrame(new QWidget(mFrame1)), mPicContainer(new QWidget(mPicInternalFrame)),
      mHScroll1(scrollBar(Qt::Horizontal, mFrame1, QStringLiteral("HScroll1"), QStringLiteral("Scroll sideways"))),
      mVScroll1(scrollBar(Qt::Vertical, mFrame1, QStringLiteral("VScroll1"), QStringLiteral("Scroll up and down"))) {
    mPicMainFrame->setObjectName(QStringLiteral("picMainFrame"));
    mFrame1->setObjectName(QStringLiteral("Frame1"));
    mPicInternalFrame->setObjectName(QStringLiteral("picInternalFrame"));
    mPicContainer->setObjectName(QStringLiteral("picContainer"));
    mFrame1->hide();
    for (QScrollBar *bar : {mHScroll1, mVScroll1})
        QObject::connect(bar, &QScrollBar::valueChanged, mPicMainFrame, [this] { moveForm(); });
}

void FormPane::Host(const HostedForm &form) {
    mHosted = form;
    mHosted.widget->setObjectName(QStringLiteral("currentlyOpenUsrctl"));
}

void FormPane::Remove() {
    if (mHosted.widget != nullptr) {
        mHosted.widget->hide();
        mHosted.widget->setObjectName(QString());
        mHosted.widget->deleteLater();
    }
    mHosted = HostedForm();
    SetCaption(QString());
    mFrame1->hide();
}

void FormPane::SetCaption(const QString &caption) {
    mCaption = caption;
    mFrame1->setTitle(QString(caption).replace(QLatin1Char('&'), QStringLiteral("&&")));
    mFrame1->setAccessibleName(caption);
}

void FormPane::ShowFrame() { mFrame1->show(); }

void FormPane::ShowForm() {
    if (mHosted.widget == nullptr)
        return;
    mHosted.widget->setGeometry(mPicContainer->geometry());
    mHosted.widget->show();
}

bool FormPane::Scrolling() const { return !mHScroll1->isHidden() || !mVScroll1->isHidden(); }

void FormPane::ScrollHome() {
    mHScroll1->setValue(0);
    mVScroll1->setValue(0);
}

void FormPane::LayOut() {
    const TwipScale scale = TwipScale::of(*mPicMainFrame);
    const auto pixels = [&scale](Twips length) { return scale.toPixels(length).count; };
    const int margin = pixels(kFrameMargin);
    mFrame1->setGeometry(mPicMainFrame->rect().adjusted(0, 0, -margin, -margin));
    // Inside the frame's line and below its title.
    const QRect inside = mFrame1->contentsRect();
    const int sideMargin = pixels(kViewPortMargin) / 2;
    const QRect space(sideMargin, inside.top() + margin / 2, mFrame1->width() - 2 * sideMargin,
                      inside.bottom() - inside.top() - margin);
    const int thickness = mVScroll1->sizeHint().width();
    const auto measured = [&scale](int length) { return scale.ofMeasure(Pixels{length}); };
    const ScrollLayout layout =
        ScrollLayout::of({measured(space.width()), measured(space.height())}, measured(thickness));
    mPicInternalFrame->setGeometry(QRect(space.topLeft(), scale.toPixels(layout.viewPort)));
    mPicContainer->setGeometry(QRect(QPoint(0, 0), scale.toPixels(layout.container)));
    const QRect view = mPicInternalFrame->geometry();
    mVScroll1->setGeometry(view.right() + 1, view.top(), thickness, view.height());
    mHScroll1->setGeometry(view.left(), view.bottom() + 1, view.width(), thickness);
    layOutBar(*mHScroll1, layout.horizontal);
    layOutBar(*mVScroll1, layout.vertical);
    ScrollHome();
    if (mHosted.widget != nullptr)
        mHosted.widget->setGeometry(mPicContainer->geometry());
}

void FormPane::layOutBar(QScrollBar &bar, const ScrollRange &range) {
    bar.setRange(0, range.max);
    bar.setPageStep(range.largeChange);
    bar.setSingleStep(range.smallChange);
    bar.setVisible(range.shown);
}

void FormPane::moveForm() {
    if (mHosted.widget == nullptr)
        return;
    const TwipScale scale = TwipScale::of(*mPicMainFrame);
    mHosted.widget->move(-scale.toPixels(Twips{mHScroll1->value()}).count,
                         -scale.toPixels(Twips{mVScroll1->value()}).count);
}
