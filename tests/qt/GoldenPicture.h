// Comparison with the pictures in tests/golden. With ZANTROQ_REMAKE_GOLDEN=1 in the environment they are
// written; look at each before committing it. A failed comparison writes the painted picture and the
// difference to the build folder.
#pragma once

#include <QImage>
#include <QString>

namespace zantroq::test {

// Fails the test if the picture differs from the stored one by more than a small tolerance for fonts or in
// more than this share of the pixels.
void CompareWithGolden(const QImage& painted, const QString& file, double mostDifferent = 0.01);

} // namespace zantroq::test
