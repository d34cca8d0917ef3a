#include "app/Program.h"

#include <ole2.h>

#include <string>

#include "app/frmStart.h"
#include "faults/Faults.h"
#include "faults/LastError.h"
#include "faults/PendingFault.h"
#include "system/MsgBox.h"
#include "system/SystemLibrary.h"

namespace lindrel {

namespace {

// COM, needed to open folders and addresses with the shell, and to accept dropped files.
struct ComApartment {
    const HRESULT Result = OleInitialize(nullptr);
    ComApartment() = default;
    ~ComApartment() {
        if (SUCCEEDED(Result)) OleUninitialize();
    }
    ComApartment(const ComApartment&) = delete;
};

int RunMessageLoop(frmStart& form) {
    MSG message{};
    while (const BOOL got = GetMessageW(&message, nullptr, 0, 0)) {
        if (got == -1) ThrowLastError(L"üzenet fogadása");
        if (!form.PreTranslate(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        ThrowPendingFault();
    }
    return static_cast<int>(message.wParam);
}

}  // namespace

int RunProgram(HINSTANCE instance, int show) {
    PreferSystemLibraries();
    // An empty drive is an error like any other, not a box of the system.
    SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS);
    const ComApartment com;
    INITCOMMONCONTROLSEX classes{};
    classes.dwSize = sizeof classes;
    classes.dwICC = ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_LINK_CLASS;
    // Fails only where version 6 of the common controls is missing; creating the window then says so.
    static_cast<void>(InitCommonControlsEx(&classes));

    frmStart form(instance);
    try {
        form.Show(show);
        return RunMessageLoop(form);
    } catch (...) {
        const Fault fault = CurrentFault();
        const std::wstring number = std::to_wstring(fault.Number());
        try {
            MsgBox(form.Handle(),
                   L"Futásidejű hiba: " + number + L"\r\n\r\n" + fault.Meaning() +
                       L".\r\n\r\nA program bezárul.",
                   MB_OK | MB_ICONERROR);
            static_cast<void>(form.MayClose());  // the program ends either way
        } catch (...) {
            // A second fault while the first is reported cannot be reported as well.
        }
        return 1;
    }
}

}  // namespace lindrel
