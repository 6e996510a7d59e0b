#pragma once

#include "forms/controls/picture_box.h"
#include "forms/controls/rich_text_box.h"
#include "forms/controls/tool_button.h"
#include "forms/drawing/image_list.h"
#include "forms/model/common_dialog.h"
#include "forms/model/control_array.h"
#include "forms/model/form.h"

namespace tavrin::notes {

/// The layout of the note window: the bar with its buttons, the text below it. It has no behaviour.
class NotesDesign : public forms::Form {
  public:
    enum Button { NewOrOpen, Save, ChooseFont, ChooseColor, Bold, Italic, Underline, Leave, ButtonCount };

    explicit NotesDesign(forms::Desktop& desktop);

    // The buttons lie on the bar: what is declared first is in front.
    forms::ControlArray<forms::ToolButton, ButtonCount> ImgBouton;
    forms::PictureBox PctBarreFond;
    forms::RichTextBox txtNota;
    forms::CommonDialog dlgCommonDialog;

  protected:
    /// Size and place of the window as it opens follow the screen: a third of its width and half of its
    /// height, within bounds, near the right edge.
    void PlaceOnScreen();
    /// Lays the bar and the text out in the smallest window; from then on they follow its size.
    void PlaceControls();
    void SetPictures();

  private:
    void Describe();
    void PlaceButtons();

    forms::ImageList lstImages_;
};

}  // namespace tavrin::notes
