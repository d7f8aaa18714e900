#include "forms/form_directory.h"

#include <memory>
#include <stdexcept>

#include "platform/platform_in_force.h"
#include "test_form.h"

namespace plexel {
namespace {

constexpr FormName frmA{"frmA"}, frmB{"frmB"};

/// A form that counts its likes.
struct CountedForm : TestForm {
  explicit CountedForm(int& alive) : count(alive) { ++count; }
  ~CountedForm() override { --count; }
  int& count;
};

struct DirectoryOfOne {
  DirectoryOfOne() : use(platform) {
    directory.Add(frmA, [this] {
      ++made;
      return std::make_unique<CountedForm>(alive);
    });
  }
  int made = 0, alive = 0;
  FormDirectory directory;
  HeadlessPlatform platform;
  PlatformInForce use;
};

TEST(FormDirectory, HoldsAFormWhileItIsShown) {
  DirectoryOfOne one;
  one.platform.Modal().onRun = [&](Form& form) {
    EXPECT_EQ(one.directory.Open(frmA), &form);
    EXPECT_EQ(one.alive, 1);
    form.Unload();
    EXPECT_EQ(one.alive, 1);
  };
  EXPECT_EQ(one.directory.Open(frmA), nullptr);
  one.directory.ShowModal(frmA, nullptr);
  EXPECT_EQ(one.directory.Open(frmA), nullptr);
  EXPECT_EQ(one.alive, 0);
}

TEST(FormDirectory, MakesAFormAnewForEachShowing) {
  DirectoryOfOne one;
  one.platform.Modal().onRun = [](Form& form) {
    EXPECT_EQ(form.Caption(), "");
    form.Caption("used");
    form.Unload();
  };
  one.directory.ShowModal(frmA, nullptr);
  one.directory.ShowModal(frmA, nullptr);
  EXPECT_EQ(one.made, 2);
}

TEST(FormDirectory, RefusesAFormThatIsOpen) {
  DirectoryOfOne one;
  one.platform.Modal().onRun = [&](Form& form) {
    EXPECT_EQ(FailureOf(FailureKind::InvalidCall, [&] { one.directory.ShowModal(frmA, &form); }),
              "frmA is shown already");
    EXPECT_EQ(one.directory.Open(frmA), &form);
    form.Unload();
  };
  one.directory.ShowModal(frmA, nullptr);
  EXPECT_EQ(one.made, 1);
}

TEST(FormDirectory, KnowsNoFormThatWasNotAdded) {
  DirectoryOfOne one;
  EXPECT_EQ(FailureOf(FailureKind::NoSuchMember, [&] { one.directory.ShowModal(frmB, nullptr); }),
            "no form named frmB");
  EXPECT_EQ(one.directory.Open(frmB), nullptr);
}

TEST(FormDirectory, KnowsNoFormAfterItIsCleared) {
  DirectoryOfOne one;
  EXPECT_EQ(one.directory.Clear(), std::vector<Form*>());
  EXPECT_EQ(FailureOf(FailureKind::NoSuchMember, [&] { one.directory.ShowModal(frmA, nullptr); }),
            "no form named frmA");
}

TEST(FormDirectory, LetsAFormGoThatCannotBeShown) {
  DirectoryOfOne one;
  one.platform.faults.Turn(Fault::Show, true);
  EXPECT_NE(FailureOf(FailureKind::Platform, [&] { one.directory.ShowModal(frmA, nullptr); }), "");
  EXPECT_EQ(one.directory.Open(frmA), nullptr);
  EXPECT_EQ(one.alive, 0);
}

TEST(FormDirectory, LetsAFormGoWhoseLoopThrows) {
  DirectoryOfOne one;
  one.platform.Modal().onRun = [](Form&) { throw std::logic_error("broken"); };
  EXPECT_THROW(one.directory.ShowModal(frmA, nullptr), std::logic_error);
  EXPECT_EQ(one.directory.Open(frmA), nullptr);
  EXPECT_EQ(one.alive, 0);
}

TEST(FormDirectory, ShowsAFormOverAnother) {
  DirectoryOfOne one;
  one.directory.Add(frmB, [&one] { return std::make_unique<CountedForm>(one.alive); });
  Strings order;
  one.platform.Modal().onRun = [&](Form& form) {
    if (&form == one.directory.Open(frmA) && order.empty()) {
      order.push_back("A");
      one.directory.ShowModal(frmB, &form);
      order.push_back("A again");
    } else {
      order.push_back("B over A");
      EXPECT_EQ(one.alive, 2);
    }
    form.Unload();
  };
  one.directory.ShowModal(frmA, nullptr);
  EXPECT_EQ(order, (Strings{"A", "B over A", "A again"}));
}

TEST(FormDirectory, OfTheProgramIsOne) { EXPECT_EQ(&FormDirectory::Instance(), &FormDirectory::Instance()); }

}  // namespace
}  // namespace plexel
