#include "status_panels.h"

#include <QLabel>
#include <QStatusBar>

StatusPanels::StatusPanels(QStatusBar &statusBar) {
    statusBar.setSizeGripEnabled(true);
    for (int panel = 1; panel <= int(mPanels.size()); ++panel) {
        auto *label = new QLabel(&statusBar);
        label->setObjectName(QStringLiteral("StatusBar1_Panel%1").arg(panel));
        label->setTextFormat(Qt::PlainText);
        label->setMargin(2);
        // A long text is cut by the bar and must not widen the window.
        const bool wide = panel == kLastAction || panel == kDrag;
        label->setSizePolicy(wide ? QSizePolicy::Ignored : QSizePolicy::Preferred, QSizePolicy::Preferred);
        statusBar.addWidget(label, wide ? 1 : 0);
        label->hide();
        mPanels.at(std::size_t(panel - 1)) = label;
    }
}

void StatusPanels::SetText(int panel, const QString &text) {
    QLabel &label = *mPanels.at(std::size_t(panel - 1));
    label.setText(text);
    label.setToolTip(label.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ? text.toHtmlEscaped() : QString());
}

void StatusPanels::SetVisible(int panel, bool visible) { mPanels.at(std::size_t(panel - 1))->setVisible(visible); }

void StatusPanels::Show(int panel, const QString &text) {
    SetText(panel, text);
    SetVisible(panel, true);
}

QString StatusPanels::Text(int panel) const { return mPanels.at(std::size_t(panel - 1))->text(); }

bool StatusPanels::Visible(int panel) const { return !mPanels.at(std::size_t(panel - 1))->isHidden(); }
