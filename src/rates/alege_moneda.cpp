#include "rates/alege_moneda.h"

#include <utility>

#include "data/error.h"
#include "data/text/utf8.h"
#include "rates/rate_text.h"
#include "shell/layout.h"
#include "shell/window_helpers.h"

namespace tavrin::rates {

namespace {

namespace key = forms::key;
namespace layout = shell::layout;

constexpr int DayColumn = 0;
constexpr int RateColumn = 1;
constexpr int DayWidth = 1100;
constexpr int RateWidth = 1800;
constexpr int GridWidth =
    layout::RoundedUp(DayWidth + RateWidth + 2 * forms::GridViewport::Frame + forms::ScrollBar::Thickness);
constexpr int GridHeight = 3960;
constexpr int LabelWidth = 900;

// The buttons' pictures by their numbers in the list.
constexpr int AcceptPicture = 21;
constexpr int CancelPicture = 22;

}  // namespace

AlegeMoneda::AlegeMoneda(shell::Application& application)
    : Form(application.Desktop(), "AlegeMoneda", "Alege Moneda", forms::BorderStyle::FixedDialog),
      Label2(*this, "Label2", "Moneda"),
      cmbMoneda(*this, "cmbMoneda", forms::ComboStyle::DropDown),
      Grid(*this, "Grid"),
      cmdAction(*this, "cmdAction"),
      application_(application),
      store_(application.context),
      lstImages_{{AcceptPicture, forms::Icon::Accept}, {CancelPicture, forms::Icon::Cancel}} {
    PlaceControls();
    ConnectEvents();
}

void AlegeMoneda::PlaceControls() {
    int top = layout::Margin;
    const int comboLeft = layout::Margin + LabelWidth;
    Label2.SetBounds({layout::Margin, top, LabelWidth, layout::FieldHeight});
    cmbMoneda.SetBounds({comboLeft, top, GridWidth - LabelWidth, layout::FieldHeight});
    cmbMoneda.SetBackColor(forms::Black);
    cmbMoneda.SetAccessibleName(Label2.Caption());
    top += layout::FieldHeight + layout::Gap;
    Grid.SetBounds({layout::Margin, top, GridWidth, GridHeight});
    Grid.SetAccessibleName("Curs Valutar");
    top += GridHeight + layout::Gap;
    cmdAction[Accept].SetCaption("Accepta");
    cmdAction[Cancel].SetCaption("Renunta");
    shell::PlaceAnswers(cmdAction[Accept], cmdAction[Cancel], {layout::Margin, top}, GridWidth);
    SetClientSize({GridWidth + 2 * layout::Margin, top + layout::ButtonHeight + layout::Margin});
}

void AlegeMoneda::ConnectEvents() {
    // A currency is typed, or chosen from the list.
    cmbMoneda.onChange = [this] { cmbMoneda_Change(); };
    cmbMoneda.onClick = [this] { IncarcaCursuri(); };
    cmbMoneda.onGotFocus = [this] { cmbMoneda_GotFocus(); };
    cmbMoneda.onLostFocus = [this] { cmbMoneda_LostFocus(); };
    Grid.onKeyDown = [this](int& keyCode, forms::Modifiers) { Grid_KeyDown(keyCode); };
    Grid.onDblClick = [this] { cmdAction_Click(Accept); };
    cmdAction.OnEach(&forms::Control::onClick, [this](int index) { cmdAction_Click(index); });
}

// Life.

void AlegeMoneda::ShowForm(CurrencyTarget& caller, const std::string& currency) {
    caller_ = std::shared_ptr<CurrencyTarget>(caller.CallingWindow().shared_from_this(), &caller);
    caller.CallingWindow().SetEnabled(false);
    refusal_.reset();
    isOpening_ = true;
    Load();
    cmbMoneda.SetText(currency);
    Show();
    isOpening_ = false;
}

void AlegeMoneda::OnLoad() {
    cmdAction[Accept].SetPicture(lstImages_.Picture(AcceptPicture));
    cmdAction[Cancel].SetPicture(lstImages_.Picture(CancelPicture));
    application_.CreateMessageService();
    CenterOnScreen();
}

void AlegeMoneda::OnActivate() {
    KeepOnTop();
    try {
        Reincarca();
    } catch (const data::Error& error) {
        // Opening asks for the rates twice. What was refused the first time has been told.
        const bool isKnown = isOpening_ && refusal_ && refusal_->Number() == error.Number() &&
                             refusal_->Description() == error.Description();
        if (!isKnown) throw;
    }
}

void AlegeMoneda::OnUnload() {
    if (caller_) caller_->CallingWindow().SetEnabled(true);
}

// The lists.

void AlegeMoneda::cmbMoneda_Change() {
    try {
        IncarcaCursuri();
    } catch (const data::Error& error) {
        refusal_ = error;
        throw;
    }
}

void AlegeMoneda::Reincarca() {
    IncarcaMonede();
    IncarcaCursuri();
}

void AlegeMoneda::IncarcaMonede() {
    // The list is not emptied first: it grows by all the names whenever the window is activated.
    for (std::string& name : store_.ColumnsAfterSecond())
        cmbMoneda.AddItem(std::move(name));
}

void AlegeMoneda::IncarcaCursuri() {
    data::TablePtr rates = store_.ReadRates(cmbMoneda.Text());
    if (rates) {
        ShowRates(std::move(rates));
        return;
    }
    // For good: another currency brings neither of them back.
    Grid.SetVisible(false);
    cmdAction[Accept].SetEnabled(false);
}

void AlegeMoneda::ShowRates(data::TablePtr rates) {
    Grid.SetDataSource(nullptr);
    Grid.SetDataSource(std::move(rates));
    Grid.SetFormatString("^Data|>" + cmbMoneda.Text());
    Grid.SetColumnWidth(DayColumn, DayWidth);
    Grid.SetColumnWidth(RateColumn, RateWidth);
    Grid.SetZerosApart(RateColumn);
    Grid.SetRow(1);
    Grid.SetCol(DayColumn);
    Grid.SetColSel(RateColumn);
    Grid.SetFocus();
}

// The actions.

void AlegeMoneda::cmdAction_Click(int index) {
    if (index == Accept) TakeRate();
    Unload();
}

void AlegeMoneda::TakeRate() {
    if (!caller_) throw data::ObjectNotSet();
    CurrencyTarget& target = caller_->DefaultInstance();
    const data::Locale& locale = UserLocale();
    const std::string& currency = cmbMoneda.Text();
    // The amount keeps its value in lei, which the rate of until now says.
    const double amountInLei = target.AmountInLei();
    const double rate = NumberOfRateText(Grid.TextMatrix(Grid.Row(), RateColumn), locale);
    target.TakeChoice({currency, rate, RateCaption(rate, currency, locale), amountInLei});
}

// Focus and keys.

void AlegeMoneda::cmbMoneda_GotFocus() {
    if (!cmbMoneda.Enabled()) return;
    cmbMoneda.SetBackColor(forms::FocusGrey);
    cmbMoneda.Select(cmbMoneda.SelStart(), data::CountCharacters(cmbMoneda.Text()));
}

void AlegeMoneda::cmbMoneda_LostFocus() {
    if (cmbMoneda.Enabled()) cmbMoneda.SetBackColor(forms::Black);
}

void AlegeMoneda::Grid_KeyDown(int& keyCode) {
    if (keyCode != key::Enter) return;
    keyCode = key::Swallowed;
    cmdAction_Click(Accept);
}

void AlegeMoneda::OnKeyDown(int& keyCode, forms::Modifiers /*modifiers*/) {
    if (keyCode == key::Escape) cmdAction_Click(Cancel);
}

}  // namespace tavrin::rates
