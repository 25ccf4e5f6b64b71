#include "platform/windows/HidSearch.h"
#include "platform/windows/RunCommand.h"

#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <vector>

namespace zpsg::platform {
namespace {

struct FakeInterface {
    const wchar_t *path; // null: its path can't be had
    HidClass::Ids ids{};
    std::set<HidClass::Access> refused{};
    bool attributesFail = false;
};

class FakeHidClass final : public HidClass {
public:
    explicit FakeHidClass(std::vector<FakeInterface> interfaces) : interfaces_(std::move(interfaces)) {}

    Entry pathAt(unsigned index, std::wstring &path) override {
        if (index >= interfaces_.size()) {
            return Entry::End;
        }
        if (interfaces_[index].path == nullptr) {
            return Entry::Unreadable;
        }
        path = interfaces_[index].path;
        return Entry::Found;
    }

    Handle open(const std::wstring &path, Access access) override {
        for (FakeInterface &entry : interfaces_) {
            if (entry.path != nullptr && path == entry.path && !entry.refused.contains(access)) {
                handles_.push_back(std::make_unique<Opened>(Opened{&entry, access}));
                open_.insert(handles_.back().get());
                return handles_.back().get();
            }
        }
        return nullptr;
    }

    std::optional<Ids> ids(Handle handle) override {
        const FakeInterface &entry = *static_cast<Opened *>(handle)->entry;
        return entry.attributesFail ? std::nullopt : std::optional(entry.ids);
    }

    void close(Handle handle) override { EXPECT_EQ(open_.erase(handle), 1U) << "closed twice"; }

    [[nodiscard]] std::size_t openHandles() const { return open_.size(); }
    [[nodiscard]] bool isOpen(Handle handle, const wchar_t *path, Access access) const {
        const auto *opened = static_cast<Opened *>(handle);
        return open_.contains(handle) && std::wstring(opened->entry->path) == path &&
               opened->access == access;
    }

private:
    struct Opened {
        FakeInterface *entry;
        Access access;
    };
    std::vector<FakeInterface> interfaces_;
    std::vector<std::unique_ptr<Opened>> handles_;
    std::set<Handle> open_;
};

using Access = HidClass::Access;
constexpr HidClass::Ids kWanted{0x264A, 0x232A};

TEST(HidSearchTest, KeepsThreeHandlesOfTheFirstThatOpensAndNoOther) {
    struct Case {
        const char *what;
        std::vector<FakeInterface> before; // in the list before the good one
    };
    const std::vector<Case> cases = {
        {"it is the very first", {}},
        {"other products and vendors", {{L"a", {0x264A, 0x2329}}, {L"b", {0x264B, 0x232A}}}},
        {"unreadable path", {{nullptr}}},
        {"attributes refused", {{L"a", kWanted, {}, true}}},
        {"not to be opened at all", {{L"a", kWanted, {Access::None}}}},
        {"not to be written", {{L"a", kWanted, {Access::Write}}}},
        {"not to be read", {{L"a", kWanted, {Access::Read}}}},
        {"neither", {{L"a", kWanted, {Access::Read, Access::Write}}}},
    };
    for (const auto &[what, before] : cases) {
        auto interfaces = before;
        interfaces.push_back({L"good", kWanted});
        interfaces.push_back({L"later", kWanted});
        FakeHidClass hid(interfaces);
        const auto handles = searchHid(hid, kWanted.vendor, kWanted.product);
        ASSERT_TRUE(handles) << what;
        EXPECT_TRUE(hid.isOpen(handles->attributes, L"good", Access::None)) << what;
        EXPECT_TRUE(hid.isOpen(handles->writing, L"good", Access::Write)) << what;
        EXPECT_TRUE(hid.isOpen(handles->reading, L"good", Access::Read)) << what;
        EXPECT_EQ(hid.openHandles(), 3U) << what;

        FakeHidClass without(before);
        EXPECT_FALSE(searchHid(without, kWanted.vendor, kWanted.product)) << what;
        EXPECT_EQ(without.openHandles(), 0U) << what;
    }
}

TEST(RunCommandTest, IsQuotedWithBackslashes) {
    EXPECT_EQ(runCommand(L"C:/Program Files/ZPS G/zpsg.exe", true),
              LR"("C:\Program Files\ZPS G\zpsg.exe" open)");
}

} // namespace
} // namespace zpsg::platform
