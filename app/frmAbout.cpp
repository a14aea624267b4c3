#include "app/frmAbout.h"

#include "app/controls/focus_ring.h"
#include "app/controls/looks.h"
#include "app/controls/maker_link.h"
#include "app/desktop/program.h"

#include <QApplication>
#include <QGridLayout>

frmAbout::frmAbout(QWidget* owner) : QDialog(owner)
{
    setObjectName("frmAbout");
    setWindowTitle(tr("About %1").arg(program::Name));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint);
    setPalette(looks::OnWhite(Qt::black));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(10, 6, 10, 8);
    auto* link = new MakerLink(14.25, this);
    link->setObjectName("lblbytallowick");
    grid->addLayout(WithTrademark(*link, looks::BoldItalic(looks::Serif, 9.75)), 0, 0, 1, 2, Qt::AlignLeft);
    QLabel* description =
        NewText("lblDescription",
                tr("Glyphgrove is a glyphgrove creator program, with a 40 word per puzzle capability, automatic "
                   "puzzle sizing from 10 X 10 to 30 X 30, automatic aphabetizing and word list save and edit "
                   "features."));
    description->setWordWrap(true);
    description->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    description->setMinimumWidth(50 * fontMetrics().averageCharWidth());
    grid->addWidget(description, 1, 0, 1, 2);
    grid->addWidget(NewText("lblVersion", tr("Version %1").arg(program::Version)), 2, 0);
    grid->addWidget(NewText("lblNotice", program::NoticeLine), 3, 0);
    grid->addWidget(NewButton(), 2, 1, 2, 1, Qt::AlignRight | Qt::AlignBottom);
    grid->setRowStretch(1, 1);
    const QSize size = looks::SizeInPixels(*this, 5745, 2205).expandedTo(grid->minimumSize());
    setFixedSize(size.width(), std::max(size.height(), grid->totalHeightForWidth(size.width())));
    looks::OutlineControls(*this);
    new FocusRing(this);
}

QLabel* frmAbout::NewText(const QString& name, const QString& text)
{
    auto* label = new QLabel(text, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* frmAbout::NewButton()
{
    auto* cmdOK = new QPushButton(tr("OK"), this);
    cmdOK->setObjectName("cmdOK");
    cmdOK->setFocus();
    // With the focus on the link, Return opens the page.
    connect(qApp, &QApplication::focusChanged, cmdOK, [this, cmdOK](const QWidget* /*old*/, const QWidget* now) {
        if (isAncestorOf(now))
            cmdOK->setDefault(now == cmdOK);
    });
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    return cmdOK;
}
