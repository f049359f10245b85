// How does a test take rights away from everybody?
#pragma once

#include <gtest/gtest.h>

#include "toolkit/platform/Platform.h"

// Needs the header of Windows before it.
#include <sddl.h>

inline constexpr const char* everything = "D:(A;;GA;;;WD)";
inline constexpr const char* nothing = "D:(D;;GA;;;WD)";
inline constexpr const char* readingOnly = "D:(A;;GRGX;;;WD)";

/// Makes the descriptor of these rights and hands it to a routine that sets them.
template <class Set>
void SetRights(const char* rights, Set set) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ASSERT_TRUE(::ConvertStringSecurityDescriptorToSecurityDescriptorA(rights, SDDL_REVISION_1, &descriptor,
                                                                       nullptr));
    set(descriptor);
    ::LocalFree(descriptor);
}
