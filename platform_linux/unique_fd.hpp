#pragma once

#include <unistd.h>

#include <utility>

namespace brinewright {

// Owns a file descriptor; -1 is none.
class Unique_Fd {
  public:
    explicit Unique_Fd(int Descriptor = -1) : Fd(Descriptor) {}
    Unique_Fd(Unique_Fd&& Other) noexcept : Fd(std::exchange(Other.Fd, -1)) {}
    Unique_Fd& operator=(Unique_Fd&& Other) noexcept {
        if (this != &Other) {
            Reset();
            Fd = std::exchange(Other.Fd, -1);
        }
        return *this;
    }
    ~Unique_Fd() { Reset(); }

    int Get() const { return Fd; }
    int Release() { return std::exchange(Fd, -1); } // the caller's from now on
    explicit operator bool() const { return Fd >= 0; }
    void Reset() {
        if (Fd >= 0) ::close(Fd);
        Fd = -1;
    }

  private:
    int Fd;
};

} // namespace brinewright
