// Handlers for the messages of other windows.

#include "window/Subclass.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "faults/Faults.h"
#include "faults/PendingFault.h"
#include "window/Control.h"

namespace lindrel::testing {
namespace {

using Answer = std::optional<LRESULT>;

class SubclassTest : public ::testing::Test {
  protected:
    ~SubclassTest() override {
        if (IsWindow(window)) DestroyWindow(window);
    }

    // A handler that writes down each WM_SETTEXT under a name and gives an answer.
    Subclass::Handler Heard(const std::wstring& name, Answer answer) {
        return [this, name, answer](UINT message, WPARAM, LPARAM lparam) -> Answer {
            if (message != WM_SETTEXT) return std::nullopt;
            heard.push_back(name + L" " + reinterpret_cast<const wchar_t*>(lparam));
            return answer;
        };
    }
    LRESULT SetText(const wchar_t* text) const {
        return SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }

    using Texts = std::vector<std::wstring>;
    const HWND window = CreateWindowExW(0, WC_EDITW, L"ablak", WS_POPUP, 0, 0, 100, 20, nullptr, nullptr,
                                        GetModuleHandleW(nullptr), nullptr);
    Texts heard;
};

TEST_F(SubclassTest, WithoutAnAnswerTheMessageGoesOnToTheWindow) {
    Subclass subclass;
    subclass.Attach(window, Heard(L"első", std::nullopt));
    EXPECT_EQ(SetText(L"új"), TRUE);
    EXPECT_EQ(heard, Texts{L"első új"});
    EXPECT_EQ(TextOf(window), L"új");
}

TEST_F(SubclassTest, AnAnswerKeepsTheMessageFromTheWindow) {
    Subclass subclass;
    subclass.Attach(window, Heard(L"első", 42));
    EXPECT_EQ(SetText(L"új"), 42);
    EXPECT_EQ(TextOf(window), L"ablak");
}

TEST_F(SubclassTest, AHandlerCanComeAfterTheWindowAndChangeItsAnswer) {
    Subclass subclass;
    subclass.Attach(window, [&](UINT message, WPARAM wparam, LPARAM lparam) -> Answer {
        if (message != WM_SETTEXT) return std::nullopt;
        const LRESULT result = subclass.Default(message, wparam, lparam);
        heard.push_back(TextOf(window));
        return result + 10;
    });
    EXPECT_EQ(SetText(L"új"), TRUE + 10);
    EXPECT_EQ(heard, Texts{L"új"});
}

TEST_F(SubclassTest, AFaultIsKeptForTheLoopAndTheMessageIsDoneWith) {
    Subclass subclass;
    subclass.Attach(window, [](UINT message, WPARAM, LPARAM) -> Answer {
        if (message == WM_SETTEXT) throw std::runtime_error("hiba");
        return std::nullopt;
    });
    EXPECT_EQ(SetText(L"új"), 0);
    EXPECT_EQ(TextOf(window), L"ablak");
    EXPECT_THROW(ThrowPendingFault(), std::runtime_error);
}

TEST_F(SubclassTest, OfSeveralTheLastIsAskedFirstAndEachCanBeDetachedByItself) {
    for (int gone = 0; gone < 3; ++gone) {
        std::unique_ptr<Subclass> handlers[3];
        const std::wstring names[] = {L"egy", L"kettő", L"három"};
        const auto attach = [&](int i) {
            handlers[i] = std::make_unique<Subclass>();
            handlers[i]->Attach(window, Heard(names[i], std::nullopt));
        };
        const auto expect_heard = [&](const std::vector<int>& order) {
            Texts expected;
            for (const int i : order) expected.push_back(names[i] + L" új");
            heard.clear();
            EXPECT_EQ(SetText(L"új"), TRUE);
            EXPECT_EQ(heard, expected) << gone;
        };
        for (int i = 0; i < 3; ++i) attach(i);
        expect_heard({2, 1, 0});
        handlers[gone]->Detach();
        std::vector<int> left{2, 1, 0};
        std::erase(left, gone);
        expect_heard(left);
        // Attached again, it is the last.
        handlers[gone]->Attach(window, Heard(names[gone], std::nullopt));
        expect_heard({gone, left[0], left[1]});
        // An object detaches when it is destroyed.
        handlers[gone].reset();
        expect_heard(left);
    }
    EXPECT_EQ(SetText(L"szabad"), TRUE);
    EXPECT_EQ(TextOf(window), L"szabad");
}

TEST_F(SubclassTest, AHandlerThatDetachesItselfPassesTheMessageOn) {
    Subclass first;
    Subclass second;
    first.Attach(window, Heard(L"első", std::nullopt));
    second.Attach(window, [&](UINT message, WPARAM, LPARAM) -> Answer {
        if (message == WM_SETTEXT) second.Detach();
        return std::nullopt;
    });
    EXPECT_EQ(SetText(L"egy"), TRUE);
    EXPECT_EQ(SetText(L"kettő"), TRUE);
    EXPECT_EQ(heard, (Texts{L"első egy", L"első kettő"}));
    EXPECT_EQ(TextOf(window), L"kettő");
}

TEST_F(SubclassTest, EachOfSeveralHearsTheEndOfTheWindowAndIsDetached) {
    Subclass handlers[2];
    std::vector<UINT> last_messages(2);
    for (std::size_t i = 0; i < 2; ++i)
        handlers[i].Attach(window, [&last_messages, i](UINT message, WPARAM, LPARAM) -> Answer {
            last_messages[i] = message;
            return message == WM_NCDESTROY ? Answer(1) : std::nullopt;
        });
    EXPECT_TRUE(DestroyWindow(window));
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(last_messages, std::vector<UINT>(2, WM_NCDESTROY));
    for (const Subclass& handler : handlers) EXPECT_EQ(handler.Default(WM_GETTEXTLENGTH, 0, 0), 0);
}

TEST_F(SubclassTest, AWindowThatIsNoneIsAnError) {
    Subclass subclass;
    EXPECT_THROW(subclass.Attach(nullptr, Heard(L"első", std::nullopt)), SystemFault);
}

}  // namespace
}  // namespace lindrel::testing
