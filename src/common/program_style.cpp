#include "program_style.h"

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returnData) const {
    if (hint == SH_ComboBox_Popup || hint == SH_Widget_Animation_Duration)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}
