// Prints the MIME type Qt finds for each file given, one a line: the file
// manager's view of a file once the system's MIME database has been updated.

#include <QCoreApplication>
#include <QMimeDatabase>

#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QMimeDatabase db;
    for (const QString& arquivo : QCoreApplication::arguments().mid(1))
        std::printf("%s\n", qPrintable(db.mimeTypeForFile(arquivo).name()));
    return 0;
}
