// Looking in on the messages of a window.

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

TEST_F(SubclassTest, OfSeveralTheLastIsAskedFirstAndEachGoesByItself) {
    Subclass first;
    first.Attach(window, Heard(L"első", std::nullopt));
    auto second = std::make_unique<Subclass>();
    second->Attach(window, Heard(L"második", std::nullopt));
    SetText(L"egy");
    EXPECT_EQ(heard, (Texts{L"második egy", L"első egy"}));
    heard.clear();
    second.reset();
    SetText(L"kettő");
    EXPECT_EQ(heard, Texts{L"első kettő"});
    EXPECT_EQ(TextOf(window), L"kettő");
}

TEST_F(SubclassTest, WhicheverGoesTheOthersStayInTheirOrder) {
    for (int gone = 0; gone < 3; ++gone) {
        Subclass handlers[3];
        const std::wstring names[] = {L"egy", L"kettő", L"három"};
        for (int i = 0; i < 3; ++i) handlers[i].Attach(window, Heard(names[i], std::nullopt));
        handlers[gone].Detach();
        Texts expected;
        for (int i = 2; i >= 0; --i)
            if (i != gone) expected.push_back(names[i] + L" új");
        heard.clear();
        SetText(L"új");
        EXPECT_EQ(heard, expected) << gone;
        // It can come back, as the last.
        handlers[gone].Attach(window, Heard(names[gone], std::nullopt));
        expected.insert(expected.begin(), names[gone] + L" új");
        heard.clear();
        SetText(L"új");
        EXPECT_EQ(heard, expected) << gone;
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

TEST_F(SubclassTest, EachOfSeveralHearsTheEndOfTheWindow) {
    Subclass first;
    Subclass second;
    int ends = 0;
    const auto count = [&](UINT message, WPARAM, LPARAM) -> Answer {
        if (message != WM_NCDESTROY) return std::nullopt;
        ++ends;
        return Answer(1);
    };
    first.Attach(window, count);
    second.Attach(window, count);
    EXPECT_TRUE(DestroyWindow(window));
    EXPECT_EQ(ends, 2);
}

TEST_F(SubclassTest, TheEndOfTheWindowIsHeardAndLeavesTheObjectAlone) {
    Subclass subclass;
    std::vector<UINT> messages;
    subclass.Attach(window, [&](UINT message, WPARAM, LPARAM) -> Answer {
        messages.push_back(message);
        return message == WM_NCDESTROY ? Answer(1) : std::nullopt;
    });
    EXPECT_TRUE(DestroyWindow(window));
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(messages.back(), static_cast<UINT>(WM_NCDESTROY));
    EXPECT_EQ(subclass.Default(WM_GETTEXTLENGTH, 0, 0), 0);
}

TEST_F(SubclassTest, AWindowThatIsNoneIsAnError) {
    Subclass subclass;
    EXPECT_THROW(subclass.Attach(nullptr, Heard(L"első", std::nullopt)), SystemFault);
}

}  // namespace
}  // namespace lindrel::testing
