#include "app/BookDrop.h"

#include <ole2.h>
#include <shellapi.h>

#include <atomic>
#include <new>

#include "controls/PendingFault.h"
#include "controls/Shell.h"

namespace lindrel {

namespace {

constexpr wchar_t kExtension[] = L".lnd";

// What is dragged, as file names; freed with its owner.
class DraggedFiles {
  public:
    explicit DraggedFiles(IDataObject* data) {
        FORMATETC files{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
        if (data == nullptr || data->GetData(&files, &medium_) != S_OK) medium_ = {};
    }
    ~DraggedFiles() { ReleaseStgMedium(&medium_); }
    DraggedFiles(const DraggedFiles&) = delete;
    DraggedFiles& operator=(const DraggedFiles&) = delete;

    // The one file; empty when there are several or none.
    std::wstring Only() const {
        auto* const files = static_cast<HDROP>(medium_.hGlobal);
        if (medium_.tymed != TYMED_HGLOBAL || DragQueryFileW(files, 0xFFFFFFFF, nullptr, 0) != 1) return {};
        std::wstring path(DragQueryFileW(files, 0, nullptr, 0), L'\0');
        DragQueryFileW(files, 0, path.data(), static_cast<UINT>(path.size()) + 1);
        return path;
    }

  private:
    STGMEDIUM medium_{};
};

// Path of the book file that is dragged; empty when it is anything else.
std::wstring DraggedBook(IDataObject* data) {
    constexpr int kLength = 4;
    const std::wstring path = DraggedFiles(data).Only();
    if (path.size() <= kLength) return {};
    const bool is_book = CompareStringOrdinal(path.c_str() + path.size() - kLength, kLength, kExtension,
                                              kLength, TRUE) == CSTR_EQUAL;
    return is_book && FileIsThere(path) ? path : std::wstring();
}

}  // namespace

// COM's interfaces have no virtual destructors; Release() deletes the object as what it is.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// Belongs to the system from its registration to its end.
class BookDrop::Target final : public IDropTarget {
  public:
    explicit Target(BookDrop& owner) : owner_(owner) {}

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
        path_ = Guarded<std::wstring>({}, [data] { return DraggedBook(data); });
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
        // With a full queue the book stays closed, and the user drops it again.
        static_cast<void>(PostMessageW(owner_.window_, kMessage, 0, 0));
        return S_OK;
    }

  private:
    // The window is disabled while a dialog or box of it is open.
    DWORD Allowed(DWORD offered) const {
        if (path_.empty() || !IsWindowEnabled(owner_.window_)) return DROPEFFECT_NONE;
        if ((offered & DROPEFFECT_COPY) != 0) return DROPEFFECT_COPY;
        return offered & DROPEFFECT_LINK;
    }

    BookDrop& owner_;
    std::wstring path_;  // of the book over the window
    std::atomic<ULONG> references_{1};
};

void BookDrop::Attach(HWND window) {
    auto* const target = new Target(*this);
    const HRESULT registered = RegisterDragDrop(window, target);
    target->Release();
    if (FAILED(registered)) throw std::bad_alloc();
    window_ = window;
}

void BookDrop::Detach() {
    if (window_ == nullptr) return;
    RevokeDragDrop(window_);
    window_ = nullptr;
}

}  // namespace lindrel
