#include "system/FileDrop.h"

#include <ole2.h>
#include <shellapi.h>

#include <atomic>
#include <memory>

#include "faults/PendingFault.h"
#include "system/Shell.h"

namespace lindrel {

namespace {

// The path of the only dragged file if it has the extension; otherwise empty.
std::wstring DraggedFile(IDataObject* data, const std::wstring& extension) {
    FORMATETC files{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium{};
    if (data == nullptr || data->GetData(&files, &medium) != S_OK) return {};
    const std::unique_ptr<STGMEDIUM, decltype(&ReleaseStgMedium)> released(&medium, &ReleaseStgMedium);
    auto* const names = static_cast<HDROP>(medium.hGlobal);
    if (medium.tymed != TYMED_HGLOBAL || DragQueryFileW(names, 0xFFFFFFFF, nullptr, 0) != 1) return {};
    std::wstring path(DragQueryFileW(names, 0, nullptr, 0), L'\0');
    DragQueryFileW(names, 0, path.data(), static_cast<UINT>(path.size()) + 1);
    if (path.size() <= extension.size()) return {};
    const wchar_t* const end = path.c_str() + (path.size() - extension.size());
    const bool wanted = CompareStringOrdinal(end, -1, extension.c_str(), -1, TRUE) == CSTR_EQUAL;
    return wanted && FileIsThere(path) ? path : std::wstring();
}

}  // namespace

// COM interfaces have no virtual destructors; Release() deletes the object by its own type.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// Owned by Windows while it is registered.
class FileDrop::Target final : public IDropTarget {
  public:
    explicit Target(FileDrop& owner) : owner_(owner) {}

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) return E_POINTER;
        *object = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDropTarget) ? this : nullptr;
        if (*object == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    STDMETHODIMP DragEnter(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
        if (effect == nullptr) return E_INVALIDARG;
        path_ = Guarded<std::wstring>({}, [&] { return DraggedFile(data, owner_.extension_); });
        *effect = Allowed(*effect);
        return S_OK;
    }
    STDMETHODIMP DragOver(DWORD, POINTL, DWORD* effect) override {
        if (effect == nullptr) return E_INVALIDARG;
        *effect = Allowed(*effect);
        return S_OK;
    }
    STDMETHODIMP DragLeave() override {
        path_.clear();
        return S_OK;
    }
    STDMETHODIMP Drop(IDataObject*, DWORD, POINTL, DWORD* effect) override {
        if (effect == nullptr) return E_INVALIDARG;
        *effect = Allowed(*effect);
        if (*effect == DROPEFFECT_NONE) return S_OK;
        owner_.path_ = std::exchange(path_, {});
        // Later, another program would keep the foreground. If it does already, the book is opened all the
        // same.
        static_cast<void>(SetForegroundWindow(owner_.window_));
        // If the queue is full nothing is opened, and the user has to drop the file again.
        static_cast<void>(PostMessageW(owner_.window_, kMessage, 0, 0));
        return S_OK;
    }

  private:
    // The window is disabled while it has a dialog or message box open.
    DWORD Allowed(DWORD offered) const {
        if (path_.empty() || !IsWindowEnabled(owner_.window_)) return DROPEFFECT_NONE;
        if ((offered & DROPEFFECT_COPY) != 0) return DROPEFFECT_COPY;
        return offered & DROPEFFECT_LINK;
    }

    FileDrop& owner_;
    std::wstring path_;  // of the file that is over the window
    std::atomic<ULONG> references_{1};
};

void FileDrop::Attach(HWND window) {
    auto* const target = new Target(*this);
    const HRESULT registered = RegisterDragDrop(window, target);
    target->Release();
    if (SUCCEEDED(registered)) window_ = window;
}

void FileDrop::Detach() {
    if (window_ == nullptr) return;
    RevokeDragDrop(window_);
    window_ = nullptr;
}

}  // namespace lindrel
