// The main window's sampling: the one place where the statistics record is filled and shown, and the one file
// outside app/ that knows the controller, to which it hands every sample.

#include "app/MyApp.h"
#include "freeing/WorkerThread.h"
#include "mainwindow/MainDialog.h"
#include "platform/Global.h"
#include "stats/ByteCount.h"
#include "stats/FormatSizeString.h"
#include "stats/MemoryReport.h"
#include "stats/PieChart.h"
#include "stats/PieSlices.h"
#include "ui_MainDialog.h"

void MainDialog::OnTimeOut()
{
    if (worker->isRunning()) {
        return;
    }
    UpdateStats(false);
    // The period counts from the end of a sample: an interpreter slower than that must not keep every other
    // event waiting, a quit among them.
    timerUpdate.start();
}

void MainDialog::UpdateStats(bool bForce)
{
    ReadMemoryReport(Global::RunAppleScript(QStringLiteral("do shell script \"vm_stat\""), this, true),
                     stats);
    ShowFigures();

    if (bForce || isVisible()) {
        ShowPieChart();
    }
    qobject_cast<MyApp *>(QCoreApplication::instance())->UpdateMenu(stats);
}

void MainDialog::ShowFigures()
{
    const auto show = [this](const char *key, QLabel *label) {
        const QString text = FormatSizeString(stats[QLatin1String(key)].toLongLong());
        stats[QLatin1String("Formatted") + QLatin1String(key)] = text;
        label->setText(text);
    };
    show("Free", ui->labelFree);
    show("Inactive", ui->labelInactive);
    show("Active", ui->labelActive);
    show("Wired", ui->labelWired);

    // Half of a hundredth of a gigabyte: the report does not quite add up to the installed memory, so the
    // total, shown with two decimals, is made to round up.
    constexpr qlonglong totalBias = 5368709;
    const qlonglong used = stats[QStringLiteral("Used")].toLongLong();
    const qlonglong total = AddBytes(stats[QStringLiteral("Free")].toLongLong(), used);
    ui->labelUsed->setText(FormatSizeString(used));
    ui->labelTotal->setText(FormatSizeString(AddBytes(total, totalBias)));
}

void MainDialog::ShowPieChart()
{
    ui->labelPieChart->setAccessibleDescription(FiguresInWords());
    // Same slices, same pixels: the label then has them already.
    const auto slices = SlicesOf(stats);
    if (slices != slicesShown || ui->labelPieChart->pixmap().isNull()) {
        ui->labelPieChart->setPixmap(CreatePieChart());
        slicesShown = slices;
    }
}

QString MainDialog::FiguresInWords() const
{
    QStringList words;
    for (const auto &[label, figure] : {std::pair(ui->label_2, ui->labelFree),
                                        {ui->label_5, ui->labelInactive},
                                        {ui->label_4, ui->labelActive},
                                        {ui->label_3, ui->labelWired}}) {
        words << label->text() + QLatin1Char(' ') + figure->text();
    }
    return words.join(QStringLiteral(", "));
}

QPixmap MainDialog::CreatePieChart()
{
    return DrawWindowPie(SlicesOf(stats));
}
