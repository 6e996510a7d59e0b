#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/model/character_format.h"
#include "forms/model/control.h"

namespace tavrin::forms {

/// The editor behind a rich text box: its peer. The document and the selection live here, and end with it.
class RichTextEditor {
  public:
    virtual ~RichTextEditor() = default;

    /// The bare text, paragraphs separated by "\r\n".
    virtual std::string Text() const = 0;
    /// Puts an unformatted text in place of everything.
    virtual void SetText(const std::string& text) = 0;

    virtual CharacterFormat SelectionFormat() const = 0;
    /// Without a selection the format is that of what will be typed next.
    virtual void FormatSelection(const CharacterFormat& format) = 0;

    /// Puts a document in place of everything. \throws data::Error where the editor cannot read it to its
    /// end; it may hold a part of it then.
    virtual void Load(std::string_view rtf) = 0;
    /// The document in RTF, in the editor's own words. \throws data::Error
    virtual std::string Save() const = 0;
    /// Whether the editor writes a paragraph's two indents in each other's place: the first line's as if it
    /// were the paragraph's, and the rest as if it were the first line's.
    virtual bool ExchangesIndents() const { return false; }
};

/// A field for formatted text of many lines. It edits by itself; the rest is asked of its editor. Keys that
/// write, Tab among them, are the editor's: Shift or Ctrl with Tab leaves the field.
class RichTextBox : public Control {
  public:
    RichTextBox(Container& parent, std::string_view name, Rect bounds = {});
    ControlKind Kind() const override { return ControlKind::RichText; }

    // All of these ask the editor. \throws data::Error while the box is not shown.
    std::string Text() const;
    void SetText(const std::string& text);
    CharacterFormat SelectionFormat() const;
    void FormatSelection(const CharacterFormat& format);
    void Load(std::string_view rtf);
    std::string Save() const;
    bool ExchangesIndents() const;

    /// The selection, or how it looks, has changed.
    std::function<void()> onSelChange;
    void HandleSelectionChange();

    bool IsFocusable() const override { return true; }
    bool KeepsTab() const override { return true; }
    AccessibleNode Accessible() const override;

  private:
    RichTextEditor* FindEditor() const;
    RichTextEditor& Editor() const;
};

}  // namespace tavrin::forms
