// Comparison with the pictures kept in tests/golden. ZANTROQ_REMAKE_GOLDEN=1 in the environment writes them
// anew; look at each before keeping it. A failed comparison leaves the picture that was painted and the
// difference in the build folder.
#pragma once

#include <QImage>
#include <QString>

namespace zantroq::test {

// Fails the test when the picture is not the kept one, but for a little tolerance of fonts and for that share
// of the pixels.
void CompareWithGolden(const QImage& painted, const QString& file, double mostDifferent = 0.01);

} // namespace zantroq::test
