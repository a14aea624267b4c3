#pragma once

#include "view/printed_page.h"

#include <QFont>
#include <QPrinter>
#include <QString>

#include <vector>

/// A real printer, or a PDF file, for one page. What is asked of it is kept, measured for the printer, until
/// the document ends; only then does the printer see any of it. So a page that fails half way never reaches
/// paper.
class PagePaper : public view::PagePrinter {
public:
    /// `name` is the document's name for the print queue and the PDF file.
    explicit PagePaper(const QString& name);

    /// The printer, for a dialog to choose another and its settings.
    QPrinter& Printer() { return Device; }

    std::optional<double> PageWidth() override;
    std::optional<double> SetFont(const view::PageFont& font) override;
    std::optional<double> Measure(std::u16string_view text) override;
    bool Write(view::PagePoint position, std::u16string_view text) override;
    bool DrawLine(view::PagePoint from, view::PagePoint to) override;
    bool EndDocument() override;

private:
    struct Text {
        QFont font;
        QPointF topLeft;
        QString text;
    };

    bool WritePdf() const;
    bool PaintOn(QPaintDevice& device) const;

    QPrinter Device;
    double Scale = 1; ///< of the page on its sheet
    QFont CurrentFont;
    std::vector<Text> Texts;
    std::vector<QLineF> Lines;
};
