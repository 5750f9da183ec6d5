#pragma once

namespace quillon {

/// Several lambdas as one visitor of a variant.
template <class... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

} // namespace quillon
