#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/Event.h"
#include "platform/IControl.h"

namespace orvik::platform {

class IPanel;

/// A text to read.
class ILabel : public virtual IControl {};

/// A frame around other controls, with a caption.
class IFrame : public virtual IControl {};

class IButton : public virtual IControl {
 public:
  virtual Event<>& Clicked() = 0;
  virtual void Click() = 0;
};

class ITextBox : public virtual IControl {
 public:
  virtual std::string Text() const = 0;
  /// Raises `Changed` when the text changes.
  virtual void SetText(const std::string& text) = 0;
  virtual bool Locked() const = 0;
  virtual void SetLocked(bool locked) = 0;
  virtual bool MultiLine() const = 0;
  virtual void SetMultiLine(bool multiLine) = 0;
  virtual Event<>& Changed() = 0;
  /// Types the text at the end.
  virtual void Type(const std::string& text) = 0;
  /// Replaces the whole text as an operator does who selects all and types.
  virtual void TypeOver(const std::string& text) = 0;
};

/// A text box with a list under it.
class IComboBox : public virtual IControl {
 public:
  virtual std::vector<std::string> Items() const = 0;
  virtual void AddItem(const std::string& text) = 0;
  virtual void ClearItems() = 0;
  /// -1 when no entry is selected.
  virtual int SelectedIndex() const = 0;
  /// Selects an entry (-1 none) and shows its text; raises `Selected` when the selection changes. An index
  /// outside is ignored.
  virtual void SetSelectedIndex(int index) = 0;
  virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
  virtual bool Editable() const = 0;
  virtual void SetEditable(bool editable) = 0;
  virtual Event<>& Selected() = 0;
  /// Raised when the focus leaves the box.
  virtual Event<>& LostFocus() = 0;
  virtual void Choose(int index) = 0;
  virtual void TypeOver(const std::string& text) = 0;
};

class IProgressBar : public virtual IControl {
 public:
  virtual int Minimum() const = 0;
  virtual int Maximum() const = 0;
  virtual void SetRange(int minimum, int maximum) = 0;
  virtual int Value() const = 0;
  /// Held within the range.
  virtual void SetValue(int value) = 0;
};

/// Shows a bitmap.
class IPictureBox : public virtual IControl {
 public:
  /// The bytes of a whole bitmap file; empty shows nothing.
  virtual void SetBitmap(std::span<const std::byte> bitmap) = 0;
  virtual std::vector<std::byte> Bitmap() const = 0;
};

/// Buttons with command numbers, some of which drop down a list of entries.
class IToolbar : public virtual IControl {
 public:
  virtual void AddButton(int command, const std::string& caption) = 0;
  /// Adds an entry under a button; an unknown parent adds nothing.
  virtual void AddEntry(int parent, int command, const std::string& caption) = 0;
  virtual std::vector<int> Commands() const = 0;
  virtual std::string CommandCaption(int command) const = 0;
  virtual void SetCommandToolTip(int command, const std::string& text) = 0;
  virtual bool CommandEnabled(int command) const = 0;
  virtual void EnableCommand(int command, bool enabled) = 0;
  virtual bool CommandVisible(int command) const = 0;
  virtual void ShowCommand(int command, bool visible) = 0;
  virtual Event<int>& CommandChosen() = 0;
  virtual void Click(int command) = 0;
};

/// Pages of which one is shown; the pages are panels.
class ITabs : public virtual IControl {
 public:
  virtual std::shared_ptr<IPanel> AddPage(const std::string& key, const std::string& caption) = 0;
  virtual void SetPageBitmap(const std::string& key, std::span<const std::byte> bitmap) = 0;
  virtual std::vector<std::string> Keys() const = 0;
  virtual std::string PageCaption(const std::string& key) const = 0;
  virtual std::shared_ptr<IPanel> Page(const std::string& key) const = 0;
  virtual std::string SelectedKey() const = 0;
  virtual void Choose(const std::string& key) = 0;
};

}  // namespace orvik::platform
