// A function of the system, replaced by a test's own for everything that the test process itself calls.
#pragma once

namespace lindrel::testing {

class ReplacedImport {
  public:
    // For as long as this object lives. Its beginning and end must find no other thread calling the function.
    // A replacement that hands calls on must have taken the function's address before. Throws
    // std::runtime_error when the process does not import the function.
    template <typename Function>
    ReplacedImport(Function* imported, Function* replacement)
        : ReplacedImport(reinterpret_cast<void*>(imported), reinterpret_cast<void*>(replacement)) {}
    ~ReplacedImport();
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;

  private:
    ReplacedImport(void* imported, void* replacement);

    void** entry_;  // where the process keeps the function's address
    void* imported_;
};

}  // namespace lindrel::testing
