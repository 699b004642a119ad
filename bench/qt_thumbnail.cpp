// Makes a thumbnail in the shortest way that Qt offers: qt_thumbnail IN OUT.png SIDE

#include <QImageReader>

int main(int argc, char** argv) {
    if (argc != 4) return 2;
    QImageReader::setAllocationLimit(0);
    QImageReader reader(QString::fromLocal8Bit(argv[1]));
    reader.setAutoTransform(true);
    const int side = QByteArray(argv[3]).toInt();
    const QImage image = reader.read();
    const bool isSaved =
        !image.isNull() && image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                               .save(QString::fromLocal8Bit(argv[2]), "PNG");
    return isSaved ? 0 : 1;
}
