#include "pane_layout.h"

#include "common_error_handler.h"
#include "filter_tabs.h"
#include "form_pane.h"
#include "form_tree_widget.h"
#include "shell_tool_bar.h"
#include "tier_buttons.h"

#include <QTabBar>
#include <QToolBar>

#include <algorithm>

namespace {
constexpr Twips kTreeLeft{50};
constexpr Twips kGap{50};
constexpr Twips kFirstTreeWidth{3150};
constexpr Twips kSplitterWidth{75};
constexpr Twips kBarFrameMargin{220}; // a tool bar's frame is that much wider than its bar
constexpr Twips kTierRightMargin{100};
constexpr Twips kLeastRightOfSplitter{600};
} // namespace

PaneLayout::PaneLayout(const Parts &parts, ErrorReport &errors)
    : mParts(parts), mErrors(errors), mSplitterLeft(kTreeLeft + kFirstTreeWidth), mTreeWidth(kFirstTreeWidth) {
    mParts.splitter.SetHandler(this);
}

Twips PaneLayout::TreeLeft() const { return kTreeLeft; }

int PaneLayout::layOutBars() {
    const TwipScale scale = TwipScale::of(mParts.area);
    const int margin = scale.toPixels(kBarFrameMargin).count;
    const QSize standard = mParts.standardBar.Bar().sizeHint();
    const QSize radio = mParts.radioBar.Bar().sizeHint();
    mParts.standardBar.Bar().setGeometry(margin / 2, 0, standard.width(), standard.height());
    const int beside = standard.width() + margin;
    const bool oneRow = beside + radio.width() + margin <= mParts.area.width();
    mParts.radioBar.Bar().setGeometry((oneRow ? beside : 0) + margin / 2, oneRow ? 0 : standard.height(), radio.width(),
                                      radio.height());
    const int tiersTop = oneRow ? std::max(standard.height(), radio.height()) : standard.height() + radio.height();
    const int tiersHeight = mParts.tiers.sizeHint().height();
    mParts.tiers.setGeometry(0, tiersTop, mParts.area.width() - scale.toPixels(kTierRightMargin).count, tiersHeight);
    return tiersTop + tiersHeight;
}

void PaneLayout::placeSplitter() {
    const TwipScale scale = TwipScale::of(mParts.area);
    QWidget &splitter = mParts.splitter;
    splitter.setGeometry(scale.toPixels(mSplitterLeft).count, splitter.y(), scale.toPixels(kSplitterWidth).count,
                         splitter.height());
    splitter.raise();
}

void PaneLayout::Form_Resize() try {
    const TwipScale scale = TwipScale::of(mParts.area);
    const auto pixels = [&scale](Twips length) { return scale.toPixels(length).count; };
    const Twips width = scale.ofMeasure(Pixels{mParts.area.width()});
    mSplitterLeft = std::max(std::min(mSplitterLeft, width - kLeastRightOfSplitter), kTreeLeft);
    if (mSplitterLeft > kTreeLeft)
        mTreeWidth = mSplitterLeft - kTreeLeft;
    const int top = layOutBars() + pixels(kGap);
    const int height = std::max(mParts.area.height() - top, 0);
    int treeLeft = pixels(kTreeLeft);
    QTabBar &strip = mParts.filterTabs.Strip();
    if (!strip.isHidden()) {
        strip.move(treeLeft, top);
        strip.resize(strip.sizeHint().width(), strip.height());
        treeLeft += strip.width();
    }
    const int splitterLeft = pixels(mSplitterLeft);
    mParts.tree.setGeometry(treeLeft, top, std::max(splitterLeft - treeLeft, 0), std::max(height - pixels(kGap), 0));
    mParts.splitter.setGeometry(splitterLeft, top, pixels(kSplitterWidth), height);
    const int paneLeft = splitterLeft + pixels(kSplitterWidth);
    mParts.pane.Pane().setGeometry(paneLeft, top, std::max(mParts.area.width() - paneLeft, 0), height);
    mParts.pane.LayOut();
}
ERROR_TAIL()

void PaneLayout::fraSplitter_MouseDown() { mSplitterDragging = 1; }

void PaneLayout::fraSplitter_MouseMove(qint32 x) try {
    if (mSplitterDragging == 0)
        return;
    if (x != 0) {
        mSplitterLeft = std::max(mSplitterLeft + Twips{x}, kTreeLeft);
        mSplitterDragging = 2;
        placeSplitter();
    } else if (mSplitterDragging == 2) {
        Form_Resize();
        mSplitterDragging = 1;
    }
}
ERROR_TAIL()

void PaneLayout::fraSplitter_MouseUp() try {
    // Released before it caught up, for example left of the tree's edge.
    if (mSplitterDragging == 2)
        Form_Resize();
    mSplitterDragging = 0;
}
ERROR_TAIL()

void PaneLayout::fraSplitter_DblClick() try {
    mSplitterLeft = mSplitterLeft != kTreeLeft ? kTreeLeft : kTreeLeft + mTreeWidth;
    Form_Resize();
}
ERROR_TAIL()
