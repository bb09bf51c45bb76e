// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/HeapTrim.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <malloc.h>

namespace ambrelle {
namespace {

TEST(HeapTrimTest, LargeBlocksStayApartAlthoughLargerOnesWereFreed)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer has a heap of its own";
#endif
    returnLargeBlocks();
    void* volatile lesson = std::malloc(16 * 1024 * 1024); // from which the library would learn
    std::free(lesson);
    const auto before = ::mallinfo2().hblks;
    void* volatile picture = std::malloc(1024 * 1024);
    EXPECT_EQ(::mallinfo2().hblks, before + 1);
    std::free(picture);
    EXPECT_EQ(::mallinfo2().hblks, before);
}

} // namespace
} // namespace ambrelle
