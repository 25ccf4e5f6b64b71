// Windows, their titles and their messages.
#include "SelfTest.h"

#include "platform/NativeEvent.h"
#include "platform/SystemMenu.h"
#include "platform/WindowRendezvous.h"

#include <optional>

namespace zpsg::selftest {

using namespace platform;
using std::chrono::milliseconds;

namespace {

constexpr const char *kTitle = "zpsg self-test \xC3\xA4\xE2\x82\xAC";
constexpr UINT kStuck = kSyncOnByFans; // what the window takes its time for
constexpr UINT kEnd = kSyncOffByFans;

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case kShowRequest:
        return lParam == 1 ? 1 : 0;
    case kStuck:
        Sleep(3000);
        return 1;
    case kEnd:
        PostQuitMessage(0);
        return 1;
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

HWND makeWindow() {
    WNDCLASSW type{};
    type.lpfnWndProc = procedure;
    type.hInstance = GetModuleHandleW(nullptr);
    type.lpszClassName = L"zpsg-selftest";
    RegisterClassW(&type);
    return CreateWindowW(type.lpszClassName, wide(kTitle).c_str(), WS_OVERLAPPEDWINDOW, 0, 0, 100, 100,
                         nullptr, nullptr, type.hInstance, nullptr);
}

} // namespace

int showWindow() {
    const auto claim = TitleClaim::tryTake(kTitle);
    const HWND window = makeWindow();
    if (!claim || window == nullptr) {
        return 2;
    }
    ready();
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    return 0;
}

void checkTitles() {
    auto claim = TitleClaim::tryTake(kTitle);
    expect(claim != nullptr, "a free title can be taken");
    expect(TitleClaim::tryTake(kTitle) == nullptr, "a taken one can't");
    expect(windowExists(kTitle), "its holder counts as there");
    expect(sendToWindow(kTitle, {kShowRequest, 0, 1}, milliseconds(50)) == Delivery::NoAnswer,
           "a holder without a window doesn't answer");
    claim.reset();
    expect(!windowExists(kTitle), "the title is free again");
    expect(sendToWindow(kTitle, {kShowRequest, 0, 1}) == Delivery::NoWindow, "nobody is there to send to");
}

void checkMessages() {
    {
        Child other(L"window");
        expect(windowExists(kTitle), "another process's window is found");
        expect(TitleClaim::tryTake(kTitle) == nullptr, "its title is taken");
        expect(sendToWindow(kTitle, {kShowRequest, 0, 1}) == Delivery::Handled, "it acts on a message");
        expect(sendToWindow(kTitle, {kShowRequest, 0, 0}) == Delivery::NotHandled, "lParam arrives");
        expect(sendToWindow(kTitle, {kCompanionNotice, 0, 1}) == Delivery::NotHandled, "it need not act");
        expect(sendToWindow(kTitle, {kStuck, 0, 0}, milliseconds(300)) == Delivery::NoAnswer,
               "a window that is busy is not waited for");
        expect(sendToWindow(kTitle, {kEnd, 0, 0}, std::chrono::seconds(20)) == Delivery::Handled,
               "it is there again afterwards");
        expect(other.exitCode() == 0, "it took its title");
    }
    expect(!windowExists(kTitle), "nothing is left of a process that has ended");
    { const Child killed(L"window"); }
    expect(!windowExists(kTitle), "nothing is left of a process that was killed");

    struct Row {
        UINT number;
        bool ours;
    };
    for (const Row &row : {Row{WM_DEVICECHANGE, true}, Row{33024, false}, Row{33025, true}, Row{33028, true},
                           Row{33029, false}, Row{WM_TIMER, false}}) {
        MSG native{};
        native.message = row.number;
        native.wParam = 2;
        native.lParam = -3;
        const auto message = fromNativeEvent(&native);
        expect(message.has_value() == row.ours &&
                   (!message ||
                    (message->number == row.number && message->wParam == 2 && message->lParam == -3)),
               "native message " + std::to_string(row.number));
    }
}

void checkSystemMenu() {
    expect(!trimSystemMenu(kTitle), "no window, no system menu");
    const HWND window = makeWindow();
    // Before it is asked for, a window has the common menu.
    const auto has = [menu = GetSystemMenu(window, FALSE)](UINT command) {
        return GetMenuState(menu, command, MF_BYCOMMAND) != static_cast<UINT>(-1);
    };
    expect(has(SC_CLOSE) && has(SC_MAXIMIZE) && has(SC_MINIMIZE), "a window has a whole menu");
    for (const char *time : {"once", "twice"}) {
        expect(trimSystemMenu(kTitle), std::string("the menu is trimmed ") + time);
        expect(!has(SC_CLOSE) && !has(SC_MAXIMIZE) && has(SC_MINIMIZE),
               "Close and Maximize are gone, no more");
    }
    DestroyWindow(window);
}

} // namespace zpsg::selftest
