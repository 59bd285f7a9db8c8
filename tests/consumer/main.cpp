// SPDX-License-Identifier: MIT
#include <CachedVectorIcon>
#include <FontLoader>
#include <MeasuredPushButton>
#include <ScalingInfo>
#include <VexoColors>
#include <VexoFeedbackDelegator>
#include <VexoLogging>
#include <VexoStylesheet>

#include <QApplication>
#include <QVBoxLayout>

#include <cstdio>

using namespace vexo::hox::qt::ui;

namespace {

class Beeper : public VexoFeedbackDelegator
{
public:
    void tone() override { std::puts("beep"); }
    void down() override { }
    void up() override { }
};

void setPanel()
{
    ScalingInfo::inst()->setPixels(1280, 800);
    ScalingInfo::inst()->setSizeMM(160, 100);
}

void setIcon(MeasuredPushButton *button)
{
    CachedVectorIcon icon(QStringLiteral(":/VexoIconGeneralEnter"), QSizeF(0, 10));
    button->setIcon(icon);
    std::printf("icon of %d x %d px\n", icon.toPixmap().width(), icon.toPixmap().height());
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    setPanel();
    std::printf("10 mm are %g px\n", double(ScalingInfo::inst()->mm2px_X(10)));
    const FontLoader fonts;
    std::printf("text of %d px\n", QApplication::font().pixelSize());
    const VexoStylesheet look(
        QStringList{ QStringLiteral(":/css/vexo-AAL.qs"), QStringLiteral(":/css/hoxq.qs") });
    std::printf("%s\n", qPrintable(VexoColors::C7.name()));

    Beeper beeper;
    VexoFeedbackDelegator::tone_delegator = &beeper;
    QWidget screen;
    auto *button = new MeasuredPushButton;
    (new QVBoxLayout(&screen))->addWidget(button);
    setIcon(button);
    QObject::connect(button, &QAbstractButton::clicked, [] { std::puts("clicked"); });
    std::printf("screen is %s\n", screen.grab().isNull() ? "blank" : "drawn");
    button->click();
    vexo::hox::qt::system::VexoLogging("consumer").Info("done");
}
