#include <QFile>
#include <QMimeDatabase>

#include <cstdio>

/// Prints the type of the file as the desktops that are made with Qt find it.
int main(int quanti, char **argomenti)
{
    if (quanti != 2) {
        return 2;
    }
    const QString file = QFile::decodeName(argomenti[1]);
    std::puts(qUtf8Printable(QMimeDatabase().mimeTypeForFile(file).name()));
    return 0;
}
