// Random trees in the text notation, and random numbers that are the same on every machine.
#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace random_tree {

class Dice
{
public:
    explicit Dice(std::uint32_t nSeed) : m_engine(nSeed) {}
    /// 0 to nCount - 1.
    int Roll(int nCount) { return static_cast<int>(m_engine() % static_cast<std::uint32_t>(nCount)); }
    bool OneIn(int nCount) { return Roll(nCount) == 0; }

private:
    std::mt19937 m_engine; // its numbers are fixed by the language
};

inline std::string Rate(Dice& dice)
{
    static const char* const RATES[] = {"0", "1", "0.5", "0.333333", "0.25", "0.7", "-0.5", "1.5", "1e9"};
    return RATES[dice.Roll(9)];
}

inline std::string Limits(Dice& dice, char axis)
{
    static const char* const LIMITS[] = {"0",       "30",  "50",      "20..300",       "10000",
                                         "100..50", "-40", "5..5000", "0..2147483647", "2147483647"};
    return std::string(":") + axis + LIMITS[dice.Roll(dice.OneIn(4) ? 10 : 4)];
}

inline std::string Unit(Dice& dice, int& nUnits)
{
    std::string strUnit = "u" + std::to_string(nUnits++);
    if (dice.OneIn(3))
        strUnit += Limits(dice, 'w');
    if (dice.OneIn(3))
        strUnit += Limits(dice, 'h');
    if (dice.OneIn(4))
        strUnit += '~';
    return dice.OneIn(8) ? strUnit + '-' : strUnit;
}

/// A tree of that many units; shapes from balanced to chain.
inline std::string Tree(Dice& dice, int nCount, int& nUnits, int& nLines)
{
    if (nCount <= 0)
        return ".";
    if (nCount == 1)
        return Unit(dice, nUnits);
    const int nFirst = dice.OneIn(20) ? 0 : 1 + dice.Roll(nCount - 1);
    std::string strTree = dice.OneIn(2) ? "V" : "H";
    strTree += Rate(dice) + (dice.OneIn(2) ? "*" : "") + "#l" + std::to_string(nLines++) + "[";
    strTree += Tree(dice, nFirst, nUnits, nLines) + " ";
    // An empty side now and then, without which the tree would never end.
    strTree += Tree(dice, nFirst == 0 ? nCount - 1 : nCount - nFirst, nUnits, nLines) + "]";
    return dice.OneIn(12) ? strTree + '-' : strTree;
}

} // namespace random_tree
