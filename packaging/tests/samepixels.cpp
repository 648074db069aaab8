// samepixels ACTUAL EXPECTED: whether two images show the same pixels, whatever their files'
// encodings. Exit status 0 when they do; 1, saying where they first differ, when they do not;
// 2 when an image cannot be read.
#include <QImage>

#include <cstdio>

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "Usage: samepixels ACTUAL EXPECTED\n");
        return 2;
    }
    QImage images[2];
    for (int i = 0; i < 2; ++i) {
        if (!images[i].load(QString::fromLocal8Bit(argv[i + 1]))) {
            std::fprintf(stderr, "samepixels: cannot read %s\n", argv[i + 1]);
            return 2;
        }
        images[i] = images[i].convertToFormat(QImage::Format_ARGB32);
    }
    const QImage& actual = images[0];
    const QImage& expected = images[1];
    if (actual.size() != expected.size()) {
        std::printf("%s is %d x %d pixels, %s %d x %d\n", argv[1], actual.width(), actual.height(), argv[2],
                    expected.width(), expected.height());
        return 1;
    }
    int differing = 0;
    QPoint first;
    for (int y = 0; y < actual.height(); ++y)
        for (int x = 0; x < actual.width(); ++x)
            if (actual.pixel(x, y) != expected.pixel(x, y) && differing++ == 0)
                first = {x, y};
    if (differing == 0)
        return 0;
    std::printf("%d pixels differ, the first at (%d, %d): #%08x instead of #%08x\n", differing, first.x(), first.y(),
                actual.pixel(first), expected.pixel(first));
    return 1;
}
