#pragma once

#include <string>
#include <vector>

#include "forms/controls/chart.h"
#include "forms/controls/combo_box.h"
#include "forms/controls/command_button.h"
#include "forms/controls/decoration.h"
#include "forms/controls/frame.h"
#include "forms/controls/grid.h"
#include "forms/controls/label.h"
#include "forms/drawing/image_list.h"
#include "forms/model/control_array.h"
#include "forms/model/form.h"
#include "rates/rate_store.h"
#include "rates/rate_values.h"
#include "shell/application.h"

namespace tavrin::rates {

/// How the rate of one currency moved: the days of a month or the monthly averages of a year, as a chart and
/// as a table. Choosing in the lists draws nothing; the redraw button does.
class EvolutieCurs : public forms::Form {
  public:
    enum Action { Close, Redraw };

    explicit EvolutieCurs(shell::Application& application);

    forms::Label Label1;
    forms::ComboBox cmbAn;
    forms::Label Label2;
    forms::ComboBox cmbLuna;
    forms::Label Label5;
    forms::ComboBox cmbMoneda;
    forms::ControlArray<forms::CommandButton, 2> cmdAction;
    forms::Line Line1;
    forms::Line Line2;
    forms::Line Line3;
    forms::Frame fraMesaj;  // before the chart's frame, at whose place it stands in front
    forms::Label lblMesaj1;
    forms::Label lblMesaj2;
    forms::Frame fraGrafic;
    forms::Chart MSChart1;
    forms::Grid Grid;

  protected:
    void OnLoad() override;
    void OnActivate() override { KeepOnTop(); }
    void OnDeactivate() override { KeepOnTop(); }
    void OnUnload() override;
    /// The chart as a picture, and as its table.
    std::optional<forms::Copied> Copy() const override;

  private:
    void PlaceControls();
    void AnchorControls();
    void ConnectEvents();
    void SetHeader();
    /// The currency, the time and the unit of a choice: what the chart shows, whatever the lists say by then.
    static std::string TitleOf(const EvolutionChoice& choice);
    void MarkCurrentRow();
    void IncarcaListe();
    /// The currencies and the years, from the host's database of this moment.
    void ReadLists();
    EvolutionChoice Choice() const;

    void CalculeazaLimite();
    bool DeseneazaGrafic();
    int CountChartRows();
    void FillChart(const data::Table& table);
    void LabelRowsWithoutData(int firstRow);
    void ShowChart();
    void ShowNoData();

    void cmdAction_Click(int index);
    void RedrawChart();
    void cmdAction_KeyDown(int& keyCode);
    void Combo_KeyDown(forms::ComboBox& combo, int& keyCode);
    void CloseOnEscape(int keyCode);
    /// Swallows a key that leads nowhere, and lets it sound.
    void Ignore(int& keyCode) const;

    shell::Application& application_;
    RateStore store_;
    forms::ImageList lstImages_;
    shell::ConnectionMark mark_;  ///< of the connection that the lists were read on
};

}  // namespace tavrin::rates
