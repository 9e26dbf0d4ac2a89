#pragma once

#include "navigator_layout.h"

#include <QWidget>

#include <array>
#include <bitset>
#include <vector>

class ComboList;
class FieldLabel;
class NavigatorSlider;
class QPushButton;
class Translation;

enum class NavigatorButton {
    kFirst,
    kBack,
    kForward,
    kLast,
    kAdd,
    kInsert,
    kRepeat,
    kDelete,
    kRestart,
    kPreviousStep,
    kNextStep,
    kGotoStep,
};

// Slider, list, description and buttons of a navigator: their looks and their places, no behaviour.
class NavigatorParts {
  public:
    static constexpr std::size_t kButtons = 12;
    using ButtonSet = std::bitset<kButtons>; // by NavigatorButton

    enum class Style { kSteps, kRecords };

    // The parts are made as children of strip. shown: the record buttons that are to be seen; the style adds the
    // others.
    NavigatorParts(QWidget &strip, Style style, const ButtonSet &recordButtons);

    [[nodiscard]] NavigatorSlider &sldSelector() const { return *mSlider; }
    [[nodiscard]] ComboList &cboSelector() const { return *mList; }
    [[nodiscard]] QPushButton &button(NavigatorButton button) const { return *mButtons[std::size_t(button)]; }
    [[nodiscard]] bool shows(NavigatorButton button) const { return isShown(std::size_t(button)); }
    // What takes keys and clicks, in tab order.
    [[nodiscard]] std::vector<QWidget *> editingParts() const;

    // The untranslated captions become translated ones.
    void translate(const Translation &translation, qint32 gotoNumber);
    // What the positions are called, for the user's eyes and for assistive tools.
    void describe(const QString &recordName, const QString &description);
    // False: reached by a click only. The movement buttons always are, as the keys of the slider do the same.
    void setTabStop(bool tabStop);
    // The size that was taken.
    TwipSize layOut(Twips width);

  private:
    // What is left out where list and slider would get too little room.
    enum class Trim { kNothing, kIcons, kIconsAndDescription };

    [[nodiscard]] bool isShown(std::size_t button) const { return mShown.test(button); }
    [[nodiscard]] Twips widthOf(const QPushButton &button) const;
    [[nodiscard]] NavigatorLayout::Places places(Twips width) const;
    void apply(Trim trim);
    void place(const NavigatorLayout::Places &places);

    QWidget &mStrip;
    Style mStyle;
    ButtonSet mShown;
    NavigatorSlider *mSlider; // all owned by the strip
    FieldLabel *mDescription;
    ComboList *mList;
    std::array<QPushButton *, kButtons> mButtons{};
};
