#pragma once

#include "forms/controls/command_button.h"
#include "forms/controls/decoration.h"
#include "forms/controls/frame.h"
#include "forms/controls/grid.h"
#include "forms/controls/image.h"
#include "forms/controls/label.h"
#include "forms/controls/text_box.h"
#include "forms/model/control_array.h"
#include "forms/model/form.h"

namespace tavrin::addressbook {

/// The layout of the address book's window: its controls, their places and captions, and the state in which
/// they open, which is browsing. It has no behaviour.
class AgendaDesign : public forms::Form {
  public:
    enum Action { Accept, Cancel, Add, Modify, Delete };

    /// Boxes by the use the window makes of them. From FirstColumnBox on they follow the columns of the
    /// table.
    enum Box { SearchNumeBox, SearchPrenumeBox, NumeBox, PrenumeBox, FirstDetailBox, LastBox = 17 };
    static constexpr int FirstColumnBox = NumeBox;
    static constexpr int BoxCount = LastBox + 1;

    /// Labels 0 to 17 name the boxes of the same index; these are the headings.
    enum Heading { SearchHeading = BoxCount, PersonHeading, CompanyHeading };
    static constexpr int LabelCount = CompanyHeading + 1;

    forms::ControlArray<forms::CommandButton, 5> cmdAction;
    // The panel of the details is declared before the list, so that it lies on top of it: without a list it
    // takes its place.
    forms::Frame fraPersoana;
    forms::Frame fraGrid;
    forms::ControlArray<forms::Label, LabelCount> Label2;
    forms::ControlArray<forms::TextBox, BoxCount> TextBoxes;
    forms::Grid Grid;
    forms::Image imgAgenda;
    forms::Line Line1;
    forms::Line Line2;
    forms::Line Line3;

  protected:
    explicit AgendaDesign(forms::Desktop& desktop);

    /// Centres the window, a little higher than the middle.
    void PlaceOnScreen();

  private:
    forms::Container& ContainerOf(int labelOrBox);
    void PlaceFrames();
    void PlaceFields();
    void PlaceHeading(Heading heading, forms::Line& line, int top);
    void PlaceButtons();
    void SetTabOrder();
};

}  // namespace tavrin::addressbook
