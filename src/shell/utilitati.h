#pragma once

#include "forms/controls/command_button.h"
#include "forms/controls/image.h"
#include "forms/controls/label.h"
#include "forms/controls/picture_box.h"
#include "forms/drawing/image_list.h"
#include "forms/model/control_array.h"
#include "forms/model/form.h"
#include "shell/application.h"

namespace tavrin::shell {

/// The launcher palette: four picture buttons that open the utilities, a caption strip that moves the window
/// and rolls it up. Closing it closes the other windows and tells the host.
class Utilitati : public forms::Form {
  public:
    explicit Utilitati(Application& application);

    /// Moves the palette with the mouse.
    void MutaForma();

    forms::PictureBox picCaption;
    forms::ControlArray<forms::Image, 2> imgRollup;
    forms::Image imgClose;
    forms::ControlArray<forms::CommandButton, 4> cmdAction;
    forms::Label Label1;
    forms::Label Label2;
    forms::Label Label3;
    forms::Label Label4;

  protected:
    void OnLoad() override;
    void OnActivate() override;
    void OnDeactivate() override;
    void OnUnload() override;
    void OnKeyDown(int& keyCode, forms::Modifiers modifiers) override;

  private:
    void PlaceControls();
    void ConnectEvents();
    void PaintCaption();
    void HighlightCaption(int index);
    forms::Label& CaptionOf(int index);
    void cmdAction_Click(int index);
    void cmdAction_KeyDown(int index, int& keyCode);
    void cmdAction_MouseMove(int index, const forms::MouseInput& input);
    void RollUp();
    void Restore();
    void UnloadListedWindows();

    Application& application_;
    forms::ImageList lstImages_;
    int designHeight_ = 0;
    int designWidth_ = 0;
    int twipsPerPixelX_ = 15;
    int twipsPerPixelY_ = 15;
    bool leftByEscape_ = false;
};

}  // namespace tavrin::shell
