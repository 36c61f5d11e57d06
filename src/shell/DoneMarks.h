#pragma once

// The done mark of a to-do item, the same in a planner page and in a to-do list: the single
// byte 243 for done, 245 for not done.
constexpr char16_t kDoneMark = 243;
constexpr char16_t kNotDoneMark = 245;
