#pragma once
// Fixed arrays with the index range the program declares (0 to 501 for the
// strains, 0 to 499 for the layers, 1 to 500 for the tie flags...). They are read
// and written as A(i), the way the stages are written; an index outside the range
// is a clear CalcError naming the array and the index, never a stray write.

#include "base/calc_error.h"

#include <array>
#include <cstddef>
#include <string>

namespace pilarix {

template <typename T, int Lo, int Hi>
class VbArray {
    static_assert(Hi >= Lo);

public:
    explicit VbArray(const char* name) : name_(name) { items_.fill(T{}); }

    T& operator()(long i)
    {
        check(i);
        return items_[static_cast<std::size_t>(i - Lo)];
    }
    const T& operator()(long i) const
    {
        check(i);
        return items_[static_cast<std::size_t>(i - Lo)];
    }

    static constexpr int lower() { return Lo; }
    static constexpr int upper() { return Hi; }
    const char* name() const { return name_; }
    void fill(const T& value) { items_.fill(value); }
    // The element of index Lo, for loops that have checked their range once.
    T* data() { return items_.data(); }
    const T* data() const { return items_.data(); }

private:
    void check(long i) const
    {
        if (i < Lo || i > Hi)
            throw CalcError("Índice fora dos limites: " + std::string(name_) + "(" + std::to_string(i)
                            + "), permitido de " + std::to_string(Lo) + " a " + std::to_string(Hi) + ".");
    }

    const char* name_;
    std::array<T, static_cast<std::size_t>(Hi - Lo + 1)> items_;
};

} // namespace pilarix
