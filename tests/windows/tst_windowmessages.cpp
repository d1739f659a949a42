// Runs on Windows or Wine, without Qt: what a frameless window answers to native messages, asked of a real window.
#include "WindowMessages.h"

#include <dwmapi.h>

#include <cstdio>
#include <cwchar>

namespace {

int failures = 0;
int checks = 0;

void compare(const char *what, LRESULT actual, LRESULT expected)
{
    ++checks;
    if (actual == expected)
        return;
    ++failures;
    std::printf("FAIL  %s: %lld instead of %lld\n", what, static_cast<long long>(actual),
                static_cast<long long>(expected));
}

bool borderless = false;
bool fixedSize = false;

LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const MSG msg{window, message, wParam, lParam, 0, {}};
    LRESULT result = 0;
    if (fixedSize ? WindowMessages::answerFixed(msg) : WindowMessages::answerResizable(msg, borderless, result))
        return result;
    return DefWindowProcW(window, message, wParam, lParam);
}

struct Answer
{
    bool handled;
    LRESULT result;
};

Answer ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 7; // what the caller had there
    const bool handled = WindowMessages::answerResizable({window, message, wParam, lParam, 0, {}}, borderless, result);
    return {handled, result};
}

LPARAM point(int x, int y)
{
    return MAKELPARAM(static_cast<WORD>(x), static_cast<WORD>(y));
}

void testHits(HWND window)
{
    struct Row
    {
        const char *what;
        int x, y;
        LRESULT code;
    };
    // The window is at (-50, 20), 300 x 200.
    constexpr Row rows[] = {
        {"top left", -48, 22, HTTOPLEFT},
        {"top right", 248, 22, HTTOPRIGHT},
        {"bottom left", -48, 218, HTBOTTOMLEFT},
        {"bottom right", 248, 218, HTBOTTOMRIGHT},
        {"left", -48, 120, HTLEFT},
        {"right", 248, 120, HTRIGHT},
        {"top", 100, 22, HTTOP},
        {"bottom", 100, 218, HTBOTTOM},
        {"inside", 100, 120, HTNOWHERE},
        {"last pixel of the left band", -47, 120, HTLEFT},
        {"beside the left band", -46, 120, HTNOWHERE},
    };
    for (const Row &row : rows) {
        const Answer answer = ask(window, WM_NCHITTEST, 0, point(row.x, row.y));
        compare(row.what, answer.result, row.code);
        compare(row.what, answer.handled, row.code != HTNOWHERE);
    }
    compare("the window itself, left", SendMessageW(window, WM_NCHITTEST, 0, point(-48, 120)), HTLEFT);
    compare("the window itself, inside", SendMessageW(window, WM_NCHITTEST, 0, point(100, 120)), HTCLIENT);

    borderless = true;
    const Answer maximised = ask(window, WM_NCHITTEST, 0, point(-48, 22));
    compare("maximised: not answered", maximised.handled, false);
    compare("maximised: no code", maximised.result, 0);
    borderless = false;
}

void testOthers(HWND window)
{
    RECT rect{};
    const Answer size = ask(window, WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&rect));
    compare("client size: answered", size.handled, true);
    compare("client size: redraw", size.result, 0x0300);
    compare("client size without parameters: not answered", ask(window, WM_NCCALCSIZE, FALSE, 0).handled, false);
    const Answer dpi = ask(window, WM_DPICHANGED, 0, 0);
    compare("scale: answered", dpi.handled, true);
    compare("scale: result left alone", dpi.result, 7);
    const Answer other = ask(window, WM_SETTEXT, 0, 0);
    compare("other: not answered", other.handled, false);
    compare("other: result left alone", other.result, 7);

    const auto fixed = [window](UINT message, WPARAM wParam) {
        return WindowMessages::answerFixed({window, message, wParam, 0, 0, {}});
    };
    compare("fixed: client size", fixed(WM_NCCALCSIZE, TRUE), true);
    compare("fixed: client size without parameters", fixed(WM_NCCALCSIZE, FALSE), true);
    compare("fixed: scale", fixed(WM_DPICHANGED, 0), true);
    compare("fixed: hits", fixed(WM_NCHITTEST, 0), false);

    RECT outer{};
    RECT client{};
    GetWindowRect(window, &outer);
    GetClientRect(window, &client);
    compare("all of the window is client area: width", client.right, outer.right - outer.left);
    compare("all of the window is client area: height", client.bottom, outer.bottom - outer.top);

    const MARGINS margins{1, 1, 1, 1};
    compare("the frame extends", DwmExtendFrameIntoClientArea(window, &margins), S_OK);
}

} // namespace

int main()
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = windowProcedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"LumakitQmlTest";
    RegisterClassW(&windowClass);
    const HWND window = CreateWindowExW(0, windowClass.lpszClassName, L"", WS_OVERLAPPEDWINDOW, -50, 20, 300, 200,
                                        nullptr, nullptr, windowClass.hInstance, nullptr);
    if (!window) {
        std::printf("FAIL  no window: %lu\n", GetLastError());
        return 1;
    }
    SetWindowPos(window, nullptr, -50, 20, 300, 200, SWP_FRAMECHANGED | SWP_NOZORDER | SWP_SHOWWINDOW);
    testHits(window);
    testOthers(window);
    DestroyWindow(window);
    std::printf("%d passed, %d failed\n", checks - failures, failures);
    return failures ? 1 : 0;
}
