// How Platform lets a screen reader speak, through UI Automation. Qt has no announcement before 6.8.
#include "desktop/Platform.h"
#include <ole2.h>
#include <QAccessible>
#include <QWidget>

namespace {

/// UI Automation's functions, where Qt has loaded it for a screen reader. Windows has announcements since its
/// release of the autumn of 2017, and MinGW's headers not yet.
template <class Function>
Function fromUiAutomation(const char* name)
{
    const HMODULE loaded = GetModuleHandleW(L"uiautomationcore.dll");
    return loaded ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(loaded, name)))
                  : nullptr;
}

} // namespace

// In the name of the window, whose provider is the only one to be had without Qt.
void Platform::announce(QWidget& about, const QString& text)
{
    if (!QAccessible::isActive())
        return;
    const auto providerOf = fromUiAutomation<HRESULT(WINAPI*)(HWND, IUnknown**)>("UiaHostProviderFromHwnd");
    const auto raise =
        fromUiAutomation<HRESULT(WINAPI*)(IUnknown*, int, int, BSTR, BSTR)>("UiaRaiseNotificationEvent");
    IUnknown* provider = nullptr;
    if (!raise || !providerOf ||
        providerOf(reinterpret_cast<HWND>(about.window()->winId()), &provider) != S_OK)
        return;
    constexpr int otherKind = 4;
    constexpr int importantMostRecent = 1;
    const BSTR spoken =
        SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.utf16()), static_cast<UINT>(text.size()));
    const BSTR activity = SysAllocString(L"KestrelReader");
    raise(provider, otherKind, importantMostRecent, spoken, activity);
    SysFreeString(activity);
    SysFreeString(spoken);
    provider->Release();
}
