#pragma once

#include "host_control.h"
#include "twips.h"

#include <QPointer>

class HostedControl;
class QTabWidget;
class QWidget;

// A control's place on its form: name, class, container, order, geometry, listener. One for each control of a form,
// also for the tab control and plain frames. Owns nothing: the widget belongs to its parent widget.
class FieldHost : public HostControl {
  public:
    // What the control is called and where it stands.
    struct Place {
        QString name;
        QString typeName;
        FieldHost *container = nullptr; // null: on the form itself
        qint32 tabIndex = 0;
    };
    // widget gets the name as its object name. If it fills HostedControl, the host works through that.
    FieldHost(QWidget &widget, Place place);

    // For a control that stands directly on a page of the tab control; pages count from 0.
    void SetPage(const QTabWidget &tabs, int page);
    // Relative to the container's inner area (the page, the frame, the form). The height may be decided by the control:
    // Geometry() tells. Moves the widget.
    void SetGeometry(const TwipRect &geometry);
    [[nodiscard]] TwipRect Geometry() const { return mGeometry; }
    // The widget, null once it has been destroyed.
    [[nodiscard]] QWidget *Widget() const { return mWidget; }

    [[nodiscard]] QString Name() const override { return mPlace.name; }
    [[nodiscard]] QString TypeName() const override { return mPlace.typeName; }
    [[nodiscard]] Ifield *object() const override;
    [[nodiscard]] QString Caption() const override;
    [[nodiscard]] HostControl *Container() const override { return mPlace.container; }
    [[nodiscard]] qint32 TabIndex() const override { return mPlace.tabIndex; }
    [[nodiscard]] qint32 Left() const override;
    [[nodiscard]] bool Enabled() const override;
    // The control's own state; a control on a page that is not shown stays visible in this sense.
    [[nodiscard]] bool Visible() const override;
    void SetVisible(bool visible) override;
    [[nodiscard]] bool TabStop() const override;
    void SetTabStop(bool tabStop) override;
    void SetFocus() override;
    void SetListener(HostEvents *listener) override;

  private:
    [[nodiscard]] bool standsOnHiddenPage() const;
    [[nodiscard]] HostedControl *control() const { return mWidget.isNull() ? nullptr : mControl; }

    QPointer<QWidget> mWidget;
    HostedControl *mControl;
    Place mPlace;
    QPointer<const QTabWidget> mTabs;
    int mPage = 0;
    TwipRect mGeometry;
};
