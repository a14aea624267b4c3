#include "app/frmAbout.h"

#include "app/controls/focus_ring.h"
#include "app/controls/looks.h"
#include "app/controls/maker_link.h"
#include "app/program.h"

#include <QApplication>
#include <QPushButton>

frmAbout::frmAbout(QWidget* owner) : QDialog(owner), Scale(looks::ScaleForFont(*this))
{
    setObjectName("frmAbout");
    setWindowTitle(tr("About %1").arg(program::Name));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint);
    setPalette(looks::OnWhite(Qt::black));
    setFixedSize(looks::SizeInPixels(*this, 5745, 2205, Scale));
    BuildMaker();
    BuildTexts();
    BuildButton();
    looks::OutlineControls(*this);
    new FocusRing(this);
}

void frmAbout::BuildMaker()
{
    auto* link = new MakerLink(14.25, this);
    link->setObjectName("lblbytallowick");
    looks::Place(*link, 150, 90, 0, 360, Scale);
    PlaceTrademark(*link, looks::BoldItalic(looks::Serif, 9.75));
}

void frmAbout::BuildTexts()
{
    AddText("lblDescription",
            tr("Glyphgrove is a glyphgrove creator program, with a 40 word per puzzle capability, automatic "
               "puzzle sizing from 10 X 10 to 30 X 30, automatic aphabetizing and word list save and edit "
               "features."),
            495, 1005);
    AddText("lblVersion", tr("Version %1").arg(program::Version), 1560, 255);
    AddText("lblNotice", program::NoticeLine, 1830, 255);
}

void frmAbout::AddText(const QString& name, const QString& text, int y, int height)
{
    auto* label = new QLabel(text, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    looks::Place(*label, 150, y, 5445, height, Scale);
}

void frmAbout::BuildButton()
{
    auto* cmdOK = new QPushButton(tr("OK"), this);
    cmdOK->setObjectName("cmdOK");
    cmdOK->setFocus();
    // With the focus on the link, Return opens the page.
    connect(qApp, &QApplication::focusChanged, cmdOK, [this, cmdOK](const QWidget* /*old*/, const QWidget* now) {
        if (isAncestorOf(now))
            cmdOK->setDefault(now == cmdOK);
    });
    looks::Place(*cmdOK, 4395, 1665, 1200, 390, Scale);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}
