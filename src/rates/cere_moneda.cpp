#include "rates/cere_moneda.h"

#include "data/error.h"
#include "data/text/trim.h"
#include "rates/curs_valutar.h"
#include "shell/layout.h"
#include "shell/window_helpers.h"

namespace tavrin::rates {

namespace {

namespace key = forms::key;
namespace layout = shell::layout;
namespace message = shell::message;

constexpr int FrameWidth = 3600;

}  // namespace

CereMoneda::CereMoneda(shell::Application& application)
    : Form(application.Desktop(), "CereMoneda", "Adauga Moneda", forms::BorderStyle::FixedDialog),
      Frame1(*this, "Frame1"),
      lblLabels(Frame1, "lblLabels"),
      Shape14(Frame1, "Shape14"),
      txtMoneda(Frame1, "txtMoneda"),
      cmbMoneda(Frame1, "cmbMoneda", forms::ComboStyle::DropDownList),
      cmdAction(*this, "cmdAction"),
      application_(application),
      store_(application.context),
      lstImages_{forms::Icon::Accept, forms::Icon::Cancel} {
    PlaceControls();
    ConnectEvents();
}

void CereMoneda::PlaceControls() {
    int top = 0;
    lblLabels[0].SetCaption("Introduceti numele monedei dorite");
    lblLabels[0].SetBounds({0, top, FrameWidth, layout::LabelHeight});
    top += layout::LabelHeight;
    // The shape is the field's ground, so that the field has one frame, which shows the focus.
    const forms::Rect field{0, top, FrameWidth, layout::FieldHeight};
    Shape14.SetBounds(field);
    for (forms::Control* control :
         {static_cast<forms::Control*>(&txtMoneda), static_cast<forms::Control*>(&cmbMoneda)}) {
        control->SetBounds(field);
        control->SetBackColor(forms::Black);
        control->SetForeColor(forms::scheme::Value);
        control->SetAccessibleName(lblLabels[0].Caption());
    }
    Shape14.SetBackColor(forms::Black);
    top += layout::FieldHeight;
    Frame1.SetBordered(false);
    Frame1.SetBounds({layout::Margin, layout::Margin, FrameWidth, top});

    const int buttonTop = layout::Margin + top + layout::Gap;
    cmdAction[Accept].SetCaption("Accepta");
    cmdAction[Cancel].SetCaption("Renunta");
    shell::PlaceAnswers(cmdAction[Accept], cmdAction[Cancel], {layout::Margin, buttonTop}, FrameWidth);
    SetClientSize({FrameWidth + 2 * layout::Margin, buttonTop + layout::ButtonHeight + layout::Margin});
}

void CereMoneda::ConnectEvents() {
    for (forms::Control* field :
         {static_cast<forms::Control*>(&txtMoneda), static_cast<forms::Control*>(&cmbMoneda)}) {
        field->onGotFocus = [this, field] { ColorField(*field, forms::FocusGrey); };
        field->onLostFocus = [this, field] { ColorField(*field, forms::Black); };
    }
    txtMoneda.onKeyDown = [this](int& keyCode, forms::Modifiers modifiers) {
        txtMoneda_KeyDown(keyCode, modifiers);
    };
    cmbMoneda.onKeyDown = [this](int& keyCode, forms::Modifiers) { cmbMoneda_KeyDown(keyCode); };
    cmdAction.OnEach(&forms::Control::onClick, [this](int index) { cmdAction_Click(index); });
    cmdAction.OnEach(&forms::Control::onKeyDown,
                     [this](int, int& keyCode, forms::Modifiers) { CancelOnEscape(keyCode); });
}

// Life.

void CereMoneda::OnLoad() {
    application_.CreateMessageService();
    CenterOnScreen();
    cmdAction[Accept].SetPicture(lstImages_.Picture(1));
    cmdAction[Cancel].SetPicture(lstImages_.Picture(2));
    const bool adding = Mode == CurrencyMode::Add;
    txtMoneda.SetVisible(adding);
    cmbMoneda.SetVisible(!adding);
    if (!adding) FillCurrencies();
}

void CereMoneda::FillCurrencies() {
    for (std::string& name : store_.ColumnsAfterSecond())
        cmbMoneda.AddItem(std::move(name));
    if (cmbMoneda.ListCount() > 0) cmbMoneda.SetListIndex(0);
}

void CereMoneda::OnUnload() {
    if (auto* list = application_.Loaded<CursValutar>()) list->Reenable();
}

// The actions.

void CereMoneda::cmdAction_Click(int index) {
    if (index == Accept && Mode == CurrencyMode::Add && !AddCurrency()) return;
    Unload();
}

bool CereMoneda::AddCurrency() {
    if (data::IsBlank(txtMoneda.Text())) {
        application_.ShowMessage("Nume Obligatoriu", message::Information, message::Ok, Caption());
        txtMoneda.SetFocus();
        return false;
    }
    try {
        store_.AddCurrency(txtMoneda.Text());
    } catch (const data::Error& error) {
        const bool exists = error.Number() == data::error_number::ErrorsInCommand;
        application_.ShowMessage(
            exists ? "Moneda deja existenta ! Alegeti alta moneda !" : error.Description(),
            message::Information, message::Ok, Caption());
        txtMoneda.SetFocus();
        return false;
    }
    if (auto* list = application_.Loaded<CursValutar>()) list->ApplyDateFilter();
    return true;
}

// Focus and keys.

void CereMoneda::ColorField(forms::Control& field, forms::Color color) {
    field.SetBackColor(color);
    Shape14.SetBackColor(color);
}

void CereMoneda::txtMoneda_KeyDown(int& keyCode, forms::Modifiers modifiers) {
    const bool atEnd = txtMoneda.SelStart() == txtMoneda.TextLength();
    const bool forward = keyCode == key::Tab && !modifiers.shift;
    const bool leaves =
        keyCode == key::Enter || forward || keyCode == key::Down || (keyCode == key::Right && atEnd);
    if (leaves) {
        cmdAction[Accept].SetFocus();
        keyCode = key::Swallowed;
    }
    CancelOnEscape(keyCode);
}

void CereMoneda::cmbMoneda_KeyDown(int& keyCode) {
    CancelOnEscape(keyCode);
    if (keyCode != key::Enter && keyCode != key::Right) return;
    cmdAction[Accept].SetFocus();
    keyCode = key::Swallowed;
}

void CereMoneda::CancelOnEscape(int keyCode) {
    if (keyCode == key::Escape) cmdAction_Click(Cancel);
}

}  // namespace tavrin::rates
