#pragma once

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <vector>

/// Starts a PDF tool and waits until the file that it writes is complete. Under Wine the program cannot wait for a
/// tool of the host or read its output, and the two name folders differently.
template <class Complete>
void ReadPdf(const QFileInfo& pdf, const char* tool, QStringList arguments, const char* output, Complete complete)
{
    QProcess::startDetached(tool, arguments << pdf.fileName() << "page", pdf.path());
    QVERIFY(QTest::qWaitFor([&] { return complete(pdf.dir().filePath(output)); }));
}

/// A PDF file as a reader shows it, in twips.
struct Pdf {
    struct Word {
        QString text;
        double left, top;
    };
    int pages = 0;
    double width = 0, height = 0;
    std::vector<Word> words;

    explicit Pdf(const QFileInfo& file)
    {
        QByteArray found;
        ReadPdf(file, "pdftotext", {"-bbox"}, "page", [&found](const QString& path) {
            QFile text(path);
            found = text.open(QIODevice::ReadOnly) ? text.readAll() : QByteArray();
            return found.contains("</html>");
        });
        static const QRegularExpression part(
            "<page width=.(.*). height=.(.*).>|<word xMin=.(.*). yMin=.(.*). xMax.*>(.*)</word>");
        for (const QRegularExpressionMatch& match : part.globalMatch(found)) {
            const auto twips = [&match](int group) { return match.captured(group).toDouble() * 20; };
            if (match.hasCaptured(5)) {
                words.push_back({match.captured(5), twips(3), twips(4)});
                continue;
            }
            ++pages;
            width = twips(1);
            height = twips(2);
        }
    }
};
