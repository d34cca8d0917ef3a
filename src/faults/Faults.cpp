#include "faults/Faults.h"

#include <new>
#include <stdexcept>

namespace lindrel {

Fault CurrentFault() {
    try {
        throw;
    } catch (const FileFault& fault) {
        return {fault.Number(), fault.Path() + L"\r\n" + fault.Meaning()};
    } catch (const Fault& fault) {
        return fault;
    } catch (const std::bad_alloc&) {
        return MemoryFault();
    } catch (const std::length_error&) {
        return MemoryFault();  // a file is larger than any buffer can be
    } catch (...) {
        return {51, L"Belső hiba"};
    }
}

}  // namespace lindrel
