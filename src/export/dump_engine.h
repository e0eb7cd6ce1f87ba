// The configuration of the import/export engine, the same for both directions.
#pragma once

namespace veloran {

inline constexpr unsigned long long kEngineLimit = 10;
inline constexpr int kEngineMode = 3;

}  // namespace veloran
