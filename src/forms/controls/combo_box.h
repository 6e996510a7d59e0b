#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/model/control.h"

namespace tavrin::forms {

enum class ComboStyle {
    DropDown,      ///< any text may stand in the field
    DropDownList,  ///< the field shows an entry of the list, or nothing
};

/// A field with a list. Setting ListIndex or choosing an entry raises onClick; a text typed or set raises
/// onChange.
class ComboBox : public Control {
  public:
    ComboBox(Container& parent, std::string_view name, ComboStyle style, Rect bounds = {});
    ControlKind Kind() const override { return ControlKind::ComboBox; }
    ComboStyle Style() const { return style_; }

    void Clear();
    void AddItem(std::string item);
    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::string& Item(int index) const { return items_[static_cast<std::size_t>(index)]; }
    /// -1 while the text is none of the entries that was chosen.
    int ListIndex() const { return listIndex_; }
    /// Raises onClick when the index differs; one that the list lacks chooses nothing (-1).
    /// As many the open list shows at once; a longer one has a scroll bar.
    static constexpr int EntriesInSight = 13;

    void SetListIndex(int index);
    const std::string& Text() const { return text_; }
    /// In a drop-down list a text that is no entry is ignored; an entry's text chooses the entry.
    void SetText(std::string text);
    int SelStart() const { return selStart_; }
    int SelLength() const { return selLength_; }
    void Select(int start, int length);

    /// Where the text stands in the closed field, from the control's top left corner.
    Rect TextArea() const;

    /// Entry points of the platform's control. Choosing the entry that is already chosen raises onClick as
    /// well.
    void HandleChosen(int index);
    void HandleTyped(std::string text);
    void HandleDropped(bool dropped);
    bool IsDropped() const { return dropped_; }

    bool IsFocusable() const override { return true; }
    /// The closed field; the platform draws the text of an editable one and the open list.
    void Draw(Surface& surface) const override;
    AccessibleNode Accessible() const override;

  protected:
    /// The arrows, Page Up and Down, Home and End choose an entry while the list is closed (in an editable
    /// field only those that do not move its caret); Alt+Up, Alt+Down and F4 open the list.
    KeyOutcome DefaultKeyDown(int keyCode, Modifiers modifiers) override;
    /// In a drop-down list a letter chooses the next entry that begins with it.
    KeyOutcome DefaultKeyPress(char32_t character) override;

  private:
    void TakeEntry(int index);
    void TakeText(std::string text);
    /// The entry that a key leads to, -1 where it leads to none.
    int TargetOf(int keyCode) const;

    ComboStyle style_;
    std::vector<std::string> items_;
    int listIndex_ = -1;
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
    bool dropped_ = false;
};

}  // namespace tavrin::forms
