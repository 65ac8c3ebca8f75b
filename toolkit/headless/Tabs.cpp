#include "toolkit/headless/Tabs.h"

#include <algorithm>

#include "OrvikTypeLib/HostError.h"
#include "toolkit/headless/Desktop.h"
#include "toolkit/headless/Form.h"
#include "toolkit/headless/IMetrics.h"
#include "toolkit/headless/Panel.h"

namespace toolkit::headless {

using orvik::HostError;

std::shared_ptr<platform::IPanel> Tabs::AddPage(const std::string& key, const std::string& caption) {
  if (Find(key)) Fail(HostError::kInvalidArgument, "\"" + Name() + "\" already has a page \"" + key + "\"");
  const auto panel = GetDesktop().Make<Panel>(key);
  panel->SetParentWindow(shared_from_this());
  panel->SetVisible(false);
  Apply([&] { pages_.push_back({key, caption, {}, panel}); });
  if (pages_.size() == 1) Select(key);
  PlacePages();
  return panel;
}

void Tabs::SetPageBitmap(const std::string& key, std::span<const std::byte> bitmap) {
  const_cast<PageEntry&>(Required(key)).bitmap.assign(bitmap.begin(), bitmap.end());
  NotifyChanged();
}

std::vector<std::byte> Tabs::PageBitmap(const std::string& key) const { return Required(key).bitmap; }

std::vector<std::string> Tabs::Keys() const {
  std::vector<std::string> keys;
  for (const PageEntry& page : pages_) keys.push_back(page.key);
  return keys;
}

std::string Tabs::PageCaption(const std::string& key) const { return Required(key).caption; }

std::shared_ptr<platform::IPanel> Tabs::Page(const std::string& key) const {
  const PageEntry* page = Find(key);
  return page ? page->panel : nullptr;
}

void Tabs::Choose(const std::string& key) {
  const auto self = shared_from_this();
  const std::string chosen = key;
  if (BeginAction() && Find(chosen)) Select(chosen);
}

platform::Size Tabs::NaturalSize() const {
  platform::Size size{0, 0};
  platform::Twips captions = 0;
  for (const PageEntry& page : pages_) {
    const platform::Size inside = page.panel->NaturalSize();
    size = {std::max(size.width, inside.width), std::max(size.height, inside.height)};
    captions += Metrics().Line(page.caption).width + Metrics().Padding(Part::kTabCaption).width;
  }
  return {std::max(size.width, captions), size.height + CaptionsHeight()};
}

platform::Twips Tabs::CaptionsHeight() const {
  return Metrics().Character().height + Metrics().Padding(Part::kTabCaption).height;
}

void Tabs::Stop() {
  for (const PageEntry& page : pages_) page.panel->Stop();
}

void Tabs::BoundsChanged(const platform::Rect&) { PlacePages(); }

const Tabs::PageEntry* Tabs::Find(const std::string& key) const {
  const auto found =
      std::find_if(pages_.begin(), pages_.end(), [&](const PageEntry& page) { return page.key == key; });
  return found == pages_.end() ? nullptr : &*found;
}

const Tabs::PageEntry& Tabs::Required(const std::string& key) const {
  const PageEntry* page = Find(key);
  if (!page) Fail(HostError::kSubscriptOutOfRange, "\"" + Name() + "\" has no page \"" + key + "\"");
  return *page;
}

void Tabs::Select(const std::string& key) {
  selected_ = key;
  NotifyChanged();
  const auto pages = pages_;
  for (const PageEntry& page : pages) page.panel->Control::SetVisible(page.key == selected_);
}

void Tabs::PlacePages() {
  const auto pages = pages_;
  const platform::Twips captions = CaptionsHeight();
  const platform::Rect inside{0, captions, Bounds().width, Bounds().height - captions};
  for (const PageEntry& page : pages) page.panel->SetBounds(inside);
}

}  // namespace toolkit::headless
