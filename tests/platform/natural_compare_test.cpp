// SPDX-License-Identifier: GPL-3.0-or-later
#include "NaturalCompare.h"

#include <QCollatorSortKey>

#include <gtest/gtest.h>

#include <vector>

namespace chronomender {
namespace {

// Each name comes before the next; keys must say the same as comparing does.
const std::vector<std::string> inOrder = {"2.jpg",
                                          "10.jpg",
                                          "a 1.jpg",
                                          "A 2.jpg",
                                          "a 10.jpg",
                                          "Éclair.jpg",
                                          "IMG_9.JPG",
                                          "img_10.JPG",
                                          "IMG_99999999999999999999.JPG",
                                          "IMG_100000000000000000000.JPG",
                                          "zoo.jpg"};

TEST(NaturalCompareTest, OrdersNumbersByValueAndLettersByTheAlphabet) {
    const NaturalCompare natural;
    for (std::size_t i = 0; i < inOrder.size(); ++i)
        for (std::size_t j = 0; j < inOrder.size(); ++j) {
            SCOPED_TRACE(inOrder[i] + " and " + inOrder[j]);
            EXPECT_EQ(natural.compare(inOrder[i], inOrder[j]) <=> 0, i <=> j);
            const int byKeys = natural.sortKey(inOrder[i]).compare(natural.sortKey(inOrder[j]));
            EXPECT_EQ(byKeys <=> 0, i <=> j);
        }
}

} // namespace
} // namespace chronomender
