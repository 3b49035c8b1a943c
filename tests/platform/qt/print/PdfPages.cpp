// SPDX-License-Identifier: GPL-3.0-or-later
#include "PdfPages.h"

#include "platform/qt/QtText.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace kestrova {

namespace {

QString OutputOf(const char* tool, const QStringList& arguments) {
    QProcess process;
    process.start(QLatin1String(tool), arguments);
    process.waitForFinished(60'000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

std::vector<PdfWord> WordsOf(const QString& pdf) {
    const QString output =
        OutputOf("pdftotext", {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    static const QRegularExpression kThing(QStringLiteral(
        "<page |<word xMin=\"(.*)\" yMin=\"(.*)\" xMax=\"(.*)\" yMax=\"(.*)\">(.*)</word>"));
    std::vector<PdfWord> words;
    int page = 0;
    for (auto all = kThing.globalMatch(output); all.hasNext();) {
        const auto found = all.next();
        if (found.captured(5).isEmpty()) {
            ++page;
            continue;
        }
        words.push_back({page, found.captured(1).toDouble(), found.captured(2).toDouble(),
                         found.captured(3).toDouble(), found.captured(4).toDouble(),
                         FromQt(found.captured(5))});
    }
    return words;
}

QString DescriptionOf(const QString& pdf) {
    return OutputOf("pdfinfo", {QStringLiteral("-box"), pdf}) + OutputOf("pdffonts", {pdf});
}

QImage PictureOf(const QString& pdf, int dotsPerInch, int page) {
    const QTemporaryDir folder;
    const QString number = QString::number(page);
    OutputOf("pdftoppm", {QStringLiteral("-png"), QStringLiteral("-singlefile"),
                          QStringLiteral("-r"), QString::number(dotsPerInch), QStringLiteral("-f"),
                          number, pdf, folder.filePath(QStringLiteral("page"))});
    return QImage(folder.filePath(QStringLiteral("page.png")));
}

PdfWord FindWord(const std::vector<PdfWord>& words, const std::string& text) {
    for (const PdfWord& word : words) {
        if (word.Text == text) {
            return word;
        }
    }
    return {0, -1000, -1000, -1000, -1000, "(not there)"};
}

} // namespace kestrova
