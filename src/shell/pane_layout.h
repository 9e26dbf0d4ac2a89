#pragma once

#include "splitter_bar.h"
#include "twips.h"

class ErrorReport;
class FilterTabs;
class FormPane;
class FormTreeWidget;
class QWidget;
class ShellToolBar;
class TierButtons;

// Where everything stands in the main window's central area.
class PaneLayout final : public SplitterHandler {
  public:
    struct Parts {
        QWidget &area; // all others are its children
        ShellToolBar &standardBar;
        ShellToolBar &radioBar;
        TierButtons &tiers;
        FilterTabs &filterTabs;
        FormTreeWidget &tree;
        SplitterBar &splitter;
        FormPane &pane;
    };
    PaneLayout(const Parts &parts, ErrorReport &errors);

    void Form_Resize();

    void fraSplitter_MouseDown() override;
    void fraSplitter_MouseMove(qint32 x) override;
    void fraSplitter_MouseUp() override;
    void fraSplitter_DblClick() override;

    // 0 idle, 1 button down, 2 moved since the last layout.
    [[nodiscard]] qint32 SplitterDragging() const { return mSplitterDragging; }
    [[nodiscard]] Twips SplitterLeft() const { return mSplitterLeft; }
    [[nodiscard]] Twips TreeLeft() const;
    // Kept while the tree is folded away.
    [[nodiscard]] Twips TreeWidth() const { return mTreeWidth; }

  private:
    [[nodiscard]] int layOutBars();
    void placeSplitter();

    Parts mParts;
    ErrorReport &mErrors;
    qint32 mSplitterDragging = 0;
    Twips mSplitterLeft;
    Twips mTreeWidth;
};
