#pragma once

#include <QProxyStyle>

// Fusion, with drop-down lists that obey their number of visible rows, and without animations.
class ProgramStyle final : public QProxyStyle {
    Q_OBJECT
  public:
    ProgramStyle();
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;
};
