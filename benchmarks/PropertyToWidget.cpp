// A property set, with the widget rewritten within the set, beside the same texts set directly.

#include "property/Property.h"
#include "propertybindings/TextFieldPropertyBinding.h"

#include <QLineEdit>

#include <benchmark/benchmark.h>

#include <array>

namespace {

using namespace vantrix::sdk::ui::dialogs::propertybindings;

constexpr std::array<double, 4> values = {3.14159, -0.001, 2.5e12, 40960.0};
std::array<QString, 4> const texts = {QStringLiteral("3.14159"), QStringLiteral("-0.001"), QStringLiteral("2.5e+12"),
                                      QStringLiteral("40960")};

void propertyToWidget(benchmark::State& state)
{
    QLineEdit field;
    field.show();
    auto const property = boost::make_shared<vantrix::Property<double>>(0.0);
    TextFieldPropertyBinding<double> const binding(&field, property, BindingInterface::Immediate,
                                                   TextFieldPropertyBinding<double>::CursorAtEnd);
    std::size_t i = 0;
    for (auto _ : state) {
        property->setValue(values[i++ % values.size()]);
    }
}
BENCHMARK(propertyToWidget)->Name("property_to_widget/ours");

void directSetText(benchmark::State& state)
{
    QLineEdit field;
    field.show();
    std::size_t i = 0;
    for (auto _ : state) {
        field.setText(texts[i++ % texts.size()]);
    }
}
BENCHMARK(directSetText)->Name("property_to_widget/bound");

} // namespace
