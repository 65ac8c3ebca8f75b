#include <gtest/gtest.h>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/ITgToolbarEvents.h"

namespace orvik {
namespace {

class Listener : public virtual ICallBack, public virtual ITgToolbarEvents {
  void ICallBack_Notify(const std::string&) override {}
  void ITgToolbarEvents_OnCommand(std::int32_t) override {}
};

class CallBackOnly : public virtual ICallBack {
  void ICallBack_Notify(const std::string&) override {}
};

TEST(As, GivesAnotherInterfaceOfTheObject) {
  const std::shared_ptr<ICallBack> object = std::make_shared<Listener>();
  const auto view = As<ITgToolbarEvents>(object);
  ASSERT_TRUE(view);
  EXPECT_EQ(As<ICallBack>(view), object);
}

TEST(As, IsEmptyWithoutThatInterface) {
  const std::shared_ptr<ICallBack> object = std::make_shared<CallBackOnly>();
  EXPECT_FALSE(As<ITgToolbarEvents>(object));
}

TEST(As, IsEmptyForAnEmptyReference) { EXPECT_FALSE(As<ICallBack>(std::shared_ptr<IObject>())); }

TEST(Required, GivesTheObject) {
  const std::shared_ptr<ICallBack> object = std::make_shared<CallBackOnly>();
  EXPECT_EQ(&Required(object), object.get());
  EXPECT_EQ(Required(std::weak_ptr<ICallBack>(object)), object);
}

template <class Reference>
void ExpectError91(const Reference& reference) {
  try {
    static_cast<void>(Required(reference));
    FAIL() << "an empty reference was accepted";
  } catch (const HostError& error) {
    EXPECT_EQ(error.Number(), 91);
  }
}

TEST(Required, RejectsAnEmptyReference) { ExpectError91(std::shared_ptr<ICallBack>()); }

TEST(Required, RejectsAReleasedOwner) {
  std::weak_ptr<ICallBack> gone;
  {
    const std::shared_ptr<ICallBack> object = std::make_shared<CallBackOnly>();
    gone = object;
  }
  ExpectError91(gone);
}

}  // namespace
}  // namespace orvik
