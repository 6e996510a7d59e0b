#pragma once

namespace tavrin::tests {

// How wide and high text is on a screen without fonts, in em.
constexpr double CharacterWidth = 0.55;
constexpr double BoldCharacterWidth = 0.6;
constexpr double LineHeight = 1.2;

}  // namespace tavrin::tests
