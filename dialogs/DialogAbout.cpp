#include "dialogs/DialogAbout.h"

#include "platform/Global.h"
#include "ui_DialogAbout.h"

#include <QDebug>
#include <QDesktopServices>

DialogAbout::DialogAbout(QWidget *parent) : QDialog(parent), ui(new Ui_DialogAbout)
{
    ui->setupUi(this);
    setStyleSheet("font-size:12pt;");
    ui->labelAppTitle->setStyleSheet("font-size:14pt;font-weight:bold;");
    setWindowFlags(windowFlags() | Qt::WindowStaysOnTopHint);
    const QString name = QCoreApplication::applicationName().replace('-', ' ');
    setWindowTitle(tr("About") + ' ' + name);
    ui->labelAppTitle->setText(name);
    ui->labelVersion->setText(tr("version %1").arg(Global::VersionString));
    // Dark desktops tend to leave links in the blue of a light one.
    QString maker = ui->label_4->text().arg(QStringLiteral("https://orvanta.example/"));
    if (qAbs(qGray(palette().link().color().rgb()) - qGray(palette().window().color().rgb())) < 100) {
        maker.replace("<a ", "<a style=\"color:" + palette().windowText().color().name() + "\" ");
    }
    ui->label_4->setText(maker);
}

DialogAbout::~DialogAbout()
{
    delete ui;
}

void DialogAbout::Show()
{
    setVisible(true);
}

QUrl DialogAbout::ReviewPage()
{
    return QUrl(QStringLiteral("https://store.orvanta.example/kelvo?view=reviews"));
}

void DialogAbout::OnFeedback()
{
    QDesktopServices::openUrl(ReviewPage());
    hide();
}

void DialogAbout::OnError(const QString &text)
{
    qDebug().noquote() << '"' + text + '"';
}

void DialogAbout::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
}
