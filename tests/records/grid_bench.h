#pragma once

#include "component_listener.h"
#include "ctl_form_enabler.h"
#include "field_host.h"
#include "field_properties.h"
#include "fld_grid_field.h"
#include "focus_guard.h"
#include "iusrfrm.h"
#include "test_services.h"
#include "transformer_component.h"

#include <QWidget>

#include <memory>
#include <vector>

class TDBGrid;

// What the component raises, handed to the form as the main window does.
class FormEvents final : public ComponentListener {
  public:
    std::shared_ptr<ctlFormEnabler> enabler;

    void TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) override;
    void TransformerEvents_RefreshGridByUIID(const QString &UIID) override;
    void TransformerEvents_SetEnableDisableByUIID(const QString &UIID, bool Enable) override;
};

// The window as the form of the controls on it.
class BenchForm final : public QWidget, public Iusrfrm {
  public:
    HostControls controls;
    std::shared_ptr<ctlFormEnabler> enabler;

    std::shared_ptr<Ienabler> Iusrfrm_Enabler() override { return enabler; }
    void Iusrfrm_Terminate() override {}
    const HostControls &Iusrfrm_Controls() override { return controls; }
    HostControl *Iusrfrm_ActiveControl() override;
};

// A form with record controls over the real component: enabler, focus guard and clipboard as in the program, the tier
// "Advanced".
class GridBench {
  public:
    // With a double the form asks that one instead, and nothing is raised.
    explicit GridBench(Transformer *componentDouble = nullptr);
    ~GridBench();

    FormEvents events;
    TestServices services{nullptr};
    TransformerComponent component;
    BenchForm window;

    template <class Field>
    Field &add(const QString &name, const TwipRect &place, const QVariantMap &properties) {
        auto *field = new Field(services.fieldServices(), {QStringLiteral("bench.json"), name, properties}, &window);
        enter(*field, name, place);
        return *field;
    }
    // A grid of these columns, 9,000 by 4,000 twips.
    fldGridField &addGrid(const QString &fields, QVariantMap properties = {});
    // Fills and shows the form; the grid has the focus.
    void start(fldGridField &grid);

    [[nodiscard]] static TDBGrid &table(fldGridField &grid);
    [[nodiscard]] static QString shown(fldGridField &grid, qint32 row, qint32 column);
    [[nodiscard]] QString stored(const QString &uiid, qint32 record) const;

  private:
    void enter(QWidget &field, const QString &name, const TwipRect &place);

    std::vector<std::unique_ptr<FieldHost>> mHosts;
    FocusGuard mGuard;
};

// The columns of the channels form: 0 channel, 1 Rx frequency, 2 Tx frequency, 3 and 4 tones, 5 power, 6 network,
// 7 bandwidth, 8 busy detect.
[[nodiscard]] inline QString channelColumns() {
    return QStringLiteral("|ChannelID_q7r|650   |ID Tracker|0| 000.000000|RxFreq_q7r|1250  |Text|0| "
                          "000.000000|TxFreq_q7r|1250  |Text|0||RxSignalling_q7r|850   |ID "
                          "Tracker|0||TxSignalling_q7r|850   |ID Tracker|0||TxPower_q7r|950   "
                          "|Combo|0||ChannelNetworkId_q7r|800   |ID Tracker|0||ChannelBandwidth_q7r|850   "
                          "|Combo|0||RxBusyDetect_q7r|0     |Combo|0|");
}
