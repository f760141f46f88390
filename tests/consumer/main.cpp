#include <ZelCore/ZelSettings>
#include <ZelDeliveryManager/ZelFeatureFlags>
#include <ZelSceneGraph/Color>
#include <ZelWidgets/ZelFontMetrics>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelResources>

#include <QApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    ZelSettings("consumer").setValue("answer", 42);
    const bool stored = ZelSettings("").value("consumer.answer").toInt() == 42;
    const bool resources =
        zelmorawidgets_init_resources() == 1 && QFile::exists(":/ui/icons/search.svg");
    ZelPushButton button(QString("Hello"));
    button.show();
    const bool ranked = button.property("rank").toString() == "Secondary";
    const int editorHeight = ZelFontMetrics(&button).editorHeight();
    const bool colored = zelsg::Color(1.0f, 0.0f, 0.0f).getActive().toHSV()[1] == 1.0f;
    orv::cdm::setFeatureOverride("consumed", true);
    const bool featured = orv::cdm::isFeatureEnabled("consumed", false);
    std::printf("stored %d, resources %d, ranked %d, editor height %d\n", stored, resources, ranked,
                editorHeight);
    return stored && ranked && resources && colored && featured && editorHeight > 0 ? 0 : 1;
}
