#pragma once

#include "form_nodes.h"
#include "tick_image.h"

#include <QString>

#include <functional>

class ErrorReport;
class QTabBar;
class QWidget;
class Transformer;
class Translation;

// The tabs that filter the form tree, numbered from 1. Their keys are the untranslated names.
class FilterTabs {
  public:
    // The strip is made as a child of parent.
    FilterTabs(QWidget *parent, Transformer &transformer, const Translation &translation, ErrorReport &errors);

    // Rebuilds the strip from the component.
    void UpdateTreeFilterTab();
    // The lists of the present tier.
    [[nodiscard]] FormLists Lists() const;
    [[nodiscard]] qint32 Count() const;
    // 0 when there are no tabs.
    [[nodiscard]] qint32 Selected() const;
    // Selection by code runs nothing.
    void Select(qint32 index);
    // The key of the selected tab, "" when there are none.
    [[nodiscard]] QString CurrentFormType() const;
    void SetImages(TickImage image);
    [[nodiscard]] QTabBar &Strip() const { return *mStrip; }
    // Called when the user selects a tab.
    void SetClicked(std::function<void()> clicked);

  private:
    QTabBar *mStrip;
    Transformer &mTransformer;
    const Translation &mTranslation;
    ErrorReport &mErrors;
    std::function<void()> mClicked;
    bool mByCode = false;
};
