// The main window's sampling: fills the statistics record, shows it, and passes it to the controller. The
// only file outside app/ that includes the controller.

#include "app/MyApp.h"
#include "figures/ByteCount.h"
#include "figures/FormatSizeString.h"
#include "figures/MemoryReport.h"
#include "figures/PieChart.h"
#include "figures/PieSlices.h"
#include "freeing/WorkerThread.h"
#include "mainwindow/MainDialog.h"
#include "platform/Global.h"
#include "ui_MainDialog.h"

void MainDialog::OnTimeOut()
{
    if (worker->isRunning()) {
        return;
    }
    UpdateStats(false);
    // The period counts from the end of a sample: a slow interpreter must leave time for other events.
    timerUpdate.start();
}

void MainDialog::UpdateStats(bool bForce)
{
    ReadMemoryReport(Global::RunAppleScript(QStringLiteral("do shell script \"vm_stat\""), this, true),
                     stats);
    ShowFigures();
    if (bForce || isVisible()) {
        ui->labelPieChart->setPixmap(CreatePieChart());
        ui->labelPieChart->setAccessibleDescription(FiguresInWords());
    }
    if (auto *app = qobject_cast<MyApp *>(QCoreApplication::instance())) {
        app->UpdateMenu(stats);
    }
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

    // Deliberate: half a hundredth of a gigabyte more. The report does not quite add up to the installed
    // memory, so the total, shown with two decimals, is rounded up.
    constexpr qlonglong totalBias = 5368709;
    const qlonglong used = stats[QStringLiteral("Used")].toLongLong();
    const qlonglong total = AddBytes(stats[QStringLiteral("Free")].toLongLong(), used);
    ui->labelUsed->setText(FormatSizeString(used));
    ui->labelTotal->setText(FormatSizeString(AddBytes(total, totalBias)));
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
