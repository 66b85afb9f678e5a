#pragma once

namespace kvelder {

// The three load cases of a combination, in the names the whole program uses:
// Egen is the permanent group G, Nytt the variable group Q1, Nytt_2 the variable
// group Q2. Egen always comes first, since it starts a combination afresh.
enum class LoadCase { Egen, Nytt, Nytt_2 };

} // namespace kvelder
