#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/Controls.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

/// Pages under a line of captions. The first page is shown until another is chosen. `Page` returns empty for
/// an unknown key and `Choose` ignores it; other operations fail with `HostError` 9.
class Tabs final : public Control, public virtual platform::ITabs {
 public:
  using Control::Control;

  /// `HostError` 5 for a key that already exists.
  std::shared_ptr<platform::IPanel> AddPage(const std::string& key, const std::string& caption) override;
  void SetPageBitmap(const std::string& key, std::span<const std::byte> bitmap) override;
  std::vector<std::string> Keys() const override;
  std::string PageCaption(const std::string& key) const override;
  /// The page, or empty.
  std::shared_ptr<platform::IPanel> Page(const std::string& key) const override;
  std::string SelectedKey() const override { return selected_; }
  void Choose(const std::string& key) override;

  std::vector<std::byte> PageBitmap(const std::string& key) const;
  platform::Size NaturalSize() const override;
  void Stop() override;

 protected:
  void BoundsChanged(const platform::Rect& old) override;

 private:
  struct PageEntry {
    std::string key;
    std::string caption;
    std::vector<std::byte> bitmap;
    std::shared_ptr<Panel> panel;
  };

  const PageEntry* Find(const std::string& key) const;
  const PageEntry& Required(const std::string& key) const;
  void Select(const std::string& key);
  void PlacePages();
  platform::Twips CaptionsHeight() const;

  std::vector<PageEntry> pages_;
  std::string selected_;
};

}  // namespace toolkit::headless
