#pragma once

#include <unistd.h>

namespace quarvel {

/// An open descriptor that closes itself; negative when opening failed.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int number() const { return number_; }

private:
    int number_;
};

} // namespace quarvel
