#pragma once

#include "propertybindings/models/PremappedListModel.h"
#include "propertymanager/RelevanceInterface.h"
#include "propertymanager/generated/OptionsRulerGridPropertiesGenerated.h"

namespace vantrix::sdk::ui::propertymanager {

/// Rulers and grid of the active page's paper. Edits wait for submit().
class OptionsRulerGridPropertiesManager
{
public:
    using Relevance = boost::shared_ptr<RelevanceInterface const>;
    using SpacingModel = dialogs::propertybindings::models::PremappedListModel<PaperUnitSpacing_e>;

    OptionsRulerGridPropertiesManager();

    OptionsRulerGridPropertiesGenerated& properties() { return m_properties; }

    /// The spacings whose unit lengths can be shown in: centimetres, inches, points.
    boost::shared_ptr<SpacingModel const> rulerSpacingModel() const { return m_rulerSpacingModel; }
    /// All spacings, by unit from narrow to wide.
    boost::shared_ptr<SpacingModel const> gridSpacingModel() const { return m_gridSpacingModel; }

    /// Holds while the grid is shown. The ruler spacing has none: it also tells the units of lengths in dialogs.
    Relevance showGridRelevance() const { return m_showGridRelevance; }

    /// Takes the host's present values.
    void init() { m_properties.init(); }

    /// Applies all edits as one undo step; tells the user what keeps it from doing so.
    bool submit();

    /// Holds while there is a page; one for the process.
    static Relevance relevance();

private:
    OptionsRulerGridPropertiesGenerated m_properties;
    boost::shared_ptr<SpacingModel const> m_rulerSpacingModel;
    boost::shared_ptr<SpacingModel const> m_gridSpacingModel;
    Relevance m_showGridRelevance;
};

} // namespace vantrix::sdk::ui::propertymanager
