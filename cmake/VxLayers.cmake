# Headers that nearly every source of a layer includes, precompiled once and shared by the layers that name the owner.
set(VX_PCH_CORE <algorithm> <functional> <map> <memory> <set> <sstream> <string> <vector>
    <boost/bind/bind.hpp> <boost/function.hpp> <boost/make_shared.hpp> <boost/shared_ptr.hpp> <boost/signals2.hpp>)
set(VX_PCH_WIDGETS ${VX_PCH_CORE}
    <QAbstractListModel> <QApplication> <QCheckBox> <QComboBox> <QDialogButtonBox> <QGridLayout> <QGroupBox> <QLabel>
    <QLineEdit> <QListView> <QMenu> <QMouseEvent> <QPainter> <QPainterPath> <QPointer> <QPushButton> <QSettings> <QSpinBox>
    <QTabWidget> <QTimer> <QVBoxLayout>)

# vx_add_layer(name [SOURCES file...] [LINKS target...] [PCH header...|PCH_FROM target])
#
# One layer of the source tree as an object library (an interface library where it has headers only). A layer links only
# the layers below it. Headers are found from the roots `src` and `host`: "property/Property.h", "toolbox/Set.h".
function(vx_add_layer name)
  cmake_parse_arguments(arg "" "PCH_FROM" "SOURCES;LINKS;PCH" ${ARGN})
  set(roots $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src> $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/host>)
  if(NOT arg_SOURCES)
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${roots})
    target_link_libraries(${name} INTERFACE ${arg_LINKS})
    return()
  endif()
  add_library(${name} OBJECT ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${roots})
  target_link_libraries(${name} PUBLIC ${arg_LINKS})
  vx_compile_options(${name})
  if(arg_PCH_FROM)
    target_precompile_headers(${name} REUSE_FROM ${arg_PCH_FROM})
  elseif(arg_PCH)
    target_precompile_headers(${name} PRIVATE ${arg_PCH})
  endif()
endfunction()
