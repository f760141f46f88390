// Runs a fuzz target over the files of the folders and over the files that it is given.

#include <QByteArray>
#include <QDirIterator>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

bool runFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "can't read %s\n", qPrintable(path));
        return false;
    }
    const QByteArray content = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(content.constData()),
                           size_t(content.size()));
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const QString path = QString::fromLocal8Bit(argv[i]);
        if (!QFileInfo(path).isDir()) {
            count += runFile(path);
            continue;
        }
        QDirIterator files(path, QDir::Files);
        while (files.hasNext())
            count += runFile(files.next());
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
