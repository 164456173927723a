// What holds for every control of the library.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/Catalogue.h"
#include "tests/support/RowName.h"

namespace tactix::tests {

namespace {

class CatalogueSweepTest : public testing::TestWithParam<CatalogueEntry> {
 protected:
  CatalogueSweepTest() { control_ = MakeNew(); }

  std::unique_ptr<Control> MakeNew() {
    auto control = GetParam().make(*site_);
    control->InitProperties();
    return control;
  }
  static Variant Read(Control& control, const std::string& name) {
    return control.Properties().Find(name)->get(control);
  }
  static bool CanRead(const Control& control, const std::string& name) {
    return static_cast<bool>(control.Properties().Find(name)->get);
  }
  static bool CanWrite(const Control& control, const std::string& name) {
    return static_cast<bool>(control.Properties().Find(name)->set);
  }
  static void Write(Control& control, const std::string& name, const Variant& value) {
    control.Properties().Find(name)->set(control, value);
  }
  void DestroyWindow() {
    control_.reset();
    site_.reset();
  }

  std::unique_ptr<HeadlessSite> site_ = std::make_unique<HeadlessSite>();
  std::unique_ptr<Control> control_;
};

TEST_P(CatalogueSweepTest, AllItsPropertiesAreInTheCatalogue) {
  std::vector<std::string> documented;
  for (const CataloguedProperty& property : GetParam().properties) documented.push_back(property.name);
  std::vector<std::string> actual;
  for (const PropertyTable::Row& row : control_->Properties().Rows()) actual.push_back(row.name);
  std::sort(documented.begin(), documented.end());
  std::sort(actual.begin(), actual.end());
  ASSERT_EQ(actual, documented);
  EXPECT_EQ(std::adjacent_find(actual.begin(), actual.end()), actual.end());
}

TEST_P(CatalogueSweepTest, ANewControlHasTheDocumentedDefaults) {
  EXPECT_EQ(site_->Changes(), GetParam().announcedAtFirst);
  for (const CataloguedProperty& property : GetParam().properties) {
    if (!CanRead(*control_, property.name)) continue;
    EXPECT_EQ(Read(*control_, property.name), property.initial) << property.name;
  }
}

TEST_P(CatalogueSweepTest, ItsPropertiesReadAndWriteByName) {
  for (const CataloguedProperty& property : GetParam().properties) {
    control_ = MakeNew();
    const ObjectRef handle = control_->Handle();
    std::string upperCase = property.name;
    for (char& c : upperCase) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    // A name that is the container's, too, is the container's to a late-bound caller.
    const bool isContainers = property.name == "Visible";
    if (CanWrite(*control_, property.name)) {
      if (isContainers) {
        Write(*control_, property.name, property.other);
      } else {
        handle->Put(upperCase, property.other);
      }
      if (CanRead(*control_, property.name)) {
        EXPECT_EQ(Read(*control_, property.name), property.ReadsAfterWriting()) << property.name;
      }
    } else {
      EXPECT_EQ(ErrorCodeOf([&] { handle->Put(property.name, property.initial); }), 438) << property.name;
    }
    if (isContainers) continue;
    if (CanRead(*control_, property.name)) {
      EXPECT_EQ(handle->Get(upperCase), Read(*control_, property.name)) << property.name;
    } else {
      EXPECT_EQ(ErrorCodeOf([&] { handle->Get(property.name); }), 438) << property.name;
    }
  }
}

TEST_P(CatalogueSweepTest, ItsHandleOutlivesIt) {
  const ObjectRef handle = control_->Handle();
  EXPECT_EQ(ErrorCodeOf([&] { handle->Get("NoSuchProperty"); }), 438);
  control_.reset();
  EXPECT_EQ(ErrorCodeOf([&] { handle->Get("Width"); }), 91);
  for (const CataloguedProperty& property : GetParam().properties) {
    EXPECT_EQ(ErrorCodeOf([&] { handle->Get(property.name); }), 91);
    EXPECT_EQ(ErrorCodeOf([&] { handle->Put(property.name, property.other); }), 91);
  }
}

TEST_P(CatalogueSweepTest, SavedPropertiesComeBack) {
  // One at a time, since properties may be the same thing under two names.
  for (const CataloguedProperty& changed : GetParam().properties) {
    if (changed.saved == Saved::No) continue;
    control_ = MakeNew();
    Write(*control_, changed.name, changed.other);
    MemoryPropertyBag bag;
    control_->WriteProperties(bag);
    EXPECT_EQ(bag.Read(changed.SavedName()), changed.SavedAfterWriting()) << changed.name;
    // Where two names share a value, only what was saved under this one counts.
    MemoryPropertyBag alone;
    alone.Write(changed.SavedName(), bag.Read(changed.SavedName()));
    const auto loaded = GetParam().make(*site_);
    const Variant before = Read(*loaded, changed.name);
    loaded->ReadProperties(alone);
    EXPECT_EQ(Read(*loaded, changed.name), changed.saved == Saved::Yes ? changed.SavedAfterWriting() : before)
        << changed.name;
  }
}

TEST_P(CatalogueSweepTest, SavesWhatIsDocumentedAndNothingElse) {
  /// Keeps every value, defaults too.
  class AllBag final : public PropertyBag {
   public:
    std::set<std::string> names;
    Variant Read(std::string_view, const Variant& defaultValue) override { return defaultValue; }
    void Write(std::string_view name, const Variant&) override { names.emplace(name); }
    void Write(std::string_view name, const Variant&, const Variant&) override { names.emplace(name); }
  } bag;
  control_->WriteProperties(bag);
  std::set<std::string> documented(GetParam().alsoSaved.begin(), GetParam().alsoSaved.end());
  for (const CataloguedProperty& property : GetParam().properties) {
    if (property.saved != Saved::No) documented.insert(property.SavedName());
  }
  EXPECT_EQ(bag.names, documented);
}

TEST_P(CatalogueSweepTest, AnnouncesChangesOfSavedPropertiesOnly) {
  for (const CataloguedProperty& property : GetParam().properties) {
    if (!CanWrite(*control_, property.name)) continue;
    site_->ForgetRecords();
    Write(*control_, property.name, property.other);
    using Names = std::vector<std::string>;
    EXPECT_EQ(site_->Changes(), property.saved == Saved::No ? Names{} : Names{property.SavedName()});
  }
}

TEST_P(CatalogueSweepTest, ABagThatFailsLeavesTheDefaults) {
  class FailingBag final : public PropertyBag {
   public:
    Variant Read(std::string_view, const Variant&) override { throw Error(1234); }
    void Write(std::string_view, const Variant&) override { throw Error(1234); }
    void Write(std::string_view, const Variant&, const Variant&) override { throw Error(1234); }
  } bag;
  EXPECT_EQ(ErrorCodeOf([&] { control_->ReadProperties(bag); }),
            GetParam().failedRead == FailedRead::Reported ? 1234 : 0);
  for (const CataloguedProperty& property : GetParam().properties) {
    if (CanRead(*control_, property.name)) {
      EXPECT_EQ(Read(*control_, property.name), property.initial) << property.name;
    }
  }
  EXPECT_EQ(ErrorCodeOf([&] { control_->WriteProperties(bag); }),
            GetParam().failedWrite == FailedWrite::Reported ? 1234 : 0);
}

TEST_P(CatalogueSweepTest, ItsEventsAreNumberedInOrder) {
  std::int32_t number = 0;
  std::set<std::string_view> names;
  for (const CataloguedEvent& event : GetParam().events(*control_)) {
    EXPECT_EQ(event.number, ++number) << event.name;
    EXPECT_TRUE(names.insert(event.name).second) << event.name;
  }
}

TEST_P(CatalogueSweepTest, EveryEventHasARaiser) {
  std::set<std::string> covered(GetParam().neverRaised.begin(), GetParam().neverRaised.end());
  for (const Raiser& raiser : GetParam().raisers) covered.insert(raiser.event);
  std::set<std::string> events;
  for (const CataloguedEvent& event : GetParam().events(*control_)) events.emplace(event.name);
  EXPECT_EQ(covered, events);
}

TEST_P(CatalogueSweepTest, ARaiserRaisesItsEventOnce) {
  for (const Raiser& raiser : GetParam().raisers) {
    control_ = MakeNew();
    std::vector<std::string> raised;
    for (const CataloguedEvent& event : GetParam().events(*control_)) {
      event.connect([&raised, name = std::string(event.name)] { raised.push_back(name); });
    }
    raiser.act(*site_, *control_);
    EXPECT_EQ(raised, std::vector<std::string>{raiser.event});
  }
  EXPECT_TRUE(site_->Errors().empty());
}

TEST_P(CatalogueSweepTest, AHandlerMayDestroyTheControlOrItsWindow) {
  for (const bool withWindow : {false, true}) {
    for (const Raiser& raiser : GetParam().raisers) {
      if (!site_) site_ = std::make_unique<HeadlessSite>();
      control_ = MakeNew();
      for (const CataloguedEvent& event : GetParam().events(*control_)) {
        if (event.name != raiser.event) continue;
        event.connect([this, withWindow] { withWindow ? DestroyWindow() : control_.reset(); });
        event.connect([] { FAIL() << "a handler after the one that destroyed the control"; });
      }
      raiser.act(*site_, *control_);
      EXPECT_EQ(control_, nullptr) << raiser.event;
      if (!site_) continue;
      EXPECT_TRUE(site_->Errors().empty()) << raiser.event;
      site_->Advance(2000);  // no timer of a dead control ticks
    }
  }
}

TEST_P(CatalogueSweepTest, AnErrorOfAHandlerEndsAtTheSiteOrTheHost) {
  for (const Raiser& raiser : GetParam().raisers) {
    control_ = MakeNew();
    site_->ForgetRecords();
    for (const CataloguedEvent& event : GetParam().events(*control_)) event.connect([] { throw Error(4711); });
    const bool reachedTheHost = ErrorCodeOf([&] { raiser.act(*site_, *control_); }) == 4711;
    const bool reachedTheSite = site_->Errors().size() == 1 && site_->Errors()[0].Code() == 4711;
    EXPECT_NE(reachedTheHost, reachedTheSite) << raiser.event;
    // It goes on working.
    ErrorCodeOf([&] { raiser.act(*site_, *control_); });
  }
}

TEST_P(CatalogueSweepTest, TakesEveryNotificationOfItsContainer) {
  MemoryPropertyBag bag;
  for (int time = 0; time < 2; ++time) {
    control_->Displayed();
    control_->GotFocus();
    control_->AmbientChanged();
    control_->Extender().Width(0);
    control_->Extender().Height(0);
    control_->Extender().Place(-50, -60, 9999, 9999);
    control_->WriteProperties(bag);
    control_->ReadProperties(bag);
    control_->Terminated();
  }
  EXPECT_TRUE(site_->Errors().empty());
}

void ExpectNames(const Widget& parent, const std::vector<std::string>& groupNames) {
  std::set<std::string_view> names;
  for (const Widget* child : parent.Children()) {
    EXPECT_FALSE(child->Name().empty());
    const bool isNew = names.insert(child->Name()).second;
    const bool mayRepeat = std::find(groupNames.begin(), groupNames.end(), child->Name()) != groupNames.end();
    EXPECT_TRUE(isNew || mayRepeat) << child->Name();
    ExpectNames(*child, groupNames);
  }
}

TEST_P(CatalogueSweepTest, ItsElementsHaveNames) {
  EXPECT_FALSE(control_->Extender().Children().empty());
  ExpectNames(control_->Extender(), GetParam().groupNames);
}

INSTANTIATE_TEST_SUITE_P(Controls, CatalogueSweepTest, testing::ValuesIn(Catalogue()), RowName());

}  // namespace
}  // namespace tactix::tests
