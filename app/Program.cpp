#include "app/Program.h"

#include <objbase.h>

#include <new>
#include <string>

#include "app/frmStart.h"
#include "book/Faults.h"
#include "controls/MsgBox.h"
#include "controls/PendingFault.h"

namespace lindrel {

namespace {

// The shell's folder and address services want it.
class ComApartment {
  public:
    ComApartment()
        : usable_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))) {}
    ~ComApartment() {
        if (usable_) CoUninitialize();
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

  private:
    bool usable_;
};

std::wstring ReportText(int number, const std::wstring& meaning) {
    return L"Futásidejű hiba: " + std::to_wstring(number) + L"\r\n\r\n" + meaning + L".";
}

// What the exception being handled means to the user.
std::wstring ReportOfCurrentException() {
    try {
        throw;
    } catch (const FileFault& fault) {
        return ReportText(fault.Number(), fault.Path() + L"\r\n" + fault.Meaning());
    } catch (const Fault& fault) {
        return ReportText(fault.Number(), fault.Meaning());
    } catch (const std::bad_alloc&) {
        return ReportText(7, L"Elfogyott a memória");
    } catch (...) {
        return ReportText(51, L"Belső hiba");
    }
}

int RunMessageLoop(frmStart& form) {
    MSG message{};
    while (const BOOL got = GetMessageW(&message, nullptr, 0, 0)) {
        if (got == -1) throw std::bad_alloc();
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
    const ComApartment com;
    INITCOMMONCONTROLSEX classes{};
    classes.dwSize = sizeof classes;
    classes.dwICC = ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_LINK_CLASS;
    // Fails only where version 6 of the common controls is missing; creating the window then says so.
    static_cast<void>(InitCommonControlsEx(&classes));

    frmStart form(instance);
    try {
        form.Open(show);
        return RunMessageLoop(form);
    } catch (...) {
        const std::wstring report = ReportOfCurrentException();
        try {
            MsgBox(form.Handle(), report, MB_OK | MB_ICONERROR);
            form.OfferToSave(SaveQuestion::Closing);
        } catch (...) {
            // A second fault while the first is reported has nobody left to hear it.
        }
        return 1;
    }
}

}  // namespace lindrel
