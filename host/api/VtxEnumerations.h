/*
 * Enumerations of the function interface.
 *
 * The numbers are part of the interface: a style value of an enumeration type is read and written as the number, and
 * state-change listeners compare the kinds. Never renumber; append.
 */
#ifndef VTX_ENUMERATIONS_H
#define VTX_ENUMERATIONS_H

/* Plot */

typedef enum
{
    PlotType_Cartesian3D = 1,
    PlotType_Cartesian2D = 2,
    PlotType_XYLine = 3,
    PlotType_Sketch = 4,
    PlotType_PolarLine = 5
} PlotType_e;

typedef enum
{
    MouseMode_Selector = 1,
    MouseMode_Zoom = 2,
    MouseMode_Translate = 3,
    MouseMode_Rotate = 4,
    MouseMode_Probe = 5,
    MouseMode_Text = 6,
    MouseMode_CreateFrame = 7,
    MouseMode_Streamtrace = 23
} MouseMode_e;

/*
 * Kinds of state changes. One is sent for each change, on the thread of the user interface, after the change is
 * complete. VtxUtilStateChangeGetStyleParam() tells the style path of a `StateChange_Style`.
 */
typedef enum
{
    StateChange_VarsAltered = 0,       /* values of existing variables changed */
    StateChange_VarsAdded = 1,         /* variables were added to a data set */
    StateChange_ZonesDeleted = 2,      /* zones were deleted; later zones have moved down */
    StateChange_ZonesAdded = 3,        /* zones were added at the end */
    StateChange_NodeMapsAltered = 4,   /* the connectivity of a finite-element zone changed */
    StateChange_FrameDeleted = 5,      /* a frame is gone */
    StateChange_NewActiveFrame = 6,    /* another frame is the active one */
    StateChange_Style = 7,             /* one style value changed; carries the path */
    StateChange_DataSetReset = 8,      /* the active frame has another data set, or none */
    StateChange_NewLayout = 9,         /* all pages, frames and data were replaced */
    StateChange_CompleteReset = 10,    /* anything may have changed */
    StateChange_LineMapAssignment = 11,/* variables, zone or axes of a line map changed */
    StateChange_ContourLevels = 12,    /* levels of a contour group changed */
    StateChange_ModalDialogOpened = 13,
    StateChange_ModalDialogClosed = 14,
    StateChange_Quit = 15,             /* the application ends: listeners let go of the host */
    StateChange_ZoneName = 16,
    StateChange_VarName = 17,
    StateChange_LineMapName = 18,
    StateChange_LineMapsAddedOrDeleted = 19,
    StateChange_View = 20,             /* the view of the active frame changed */
    StateChange_ColorMap = 21,
    StateChange_ContourVar = 22,       /* the variable of a contour group changed */
    StateChange_Streamtrace = 23,      /* streamtraces were added or deleted */
    StateChange_AxisVariables = 24,    /* other variables serve as axes */
    StateChange_MouseMode = 25,
    StateChange_PickListCleared = 26,
    StateChange_PickListGroup = 27,    /* objects were picked together */
    StateChange_PickListItem = 28,     /* one object was picked */
    StateChange_UpdatesResumed = 29,   /* notification was held back and anything may have changed meanwhile */
    StateChange_MacroRecording = 30,   /* recording a macro began or ended */
    StateChange_Text = 35,             /* a text was added, changed or deleted */
    StateChange_Geometry = 36,         /* a geometry was added, changed or deleted */
    StateChange_DataAvailability = 44, /* variables were loaded or unloaded, or zones enabled or disabled */
    StateChange_PageDeleted = 49,
    StateChange_NewActivePage = 50,
    StateChange_HistoryStep = 51       /* an undo or redo is complete; sent after the changes that it consists of */
} StateChange_e;

/* Data */

typedef enum
{
    FieldDataType_Float = 1,
    FieldDataType_Double = 2,
    FieldDataType_Int32 = 3,
    FieldDataType_Int16 = 4,
    FieldDataType_Byte = 5,
    FieldDataType_Bit = 6
} FieldDataType_e;

typedef enum
{
    ValueLocation_CellCentered = 0,
    ValueLocation_Nodal = 1
} ValueLocation_e;

typedef enum
{
    ZoneType_Ordered = 0,
    ZoneType_FELineSeg = 1,
    ZoneType_FETriangle = 2,
    ZoneType_FEQuad = 3,
    ZoneType_FETetra = 4,
    ZoneType_FEBrick = 5,
    ZoneType_FEPolygon = 6,
    ZoneType_FEPolyhedron = 7
} ZoneType_e;

/* Style access */

typedef enum
{
    GetValueReturnCode_Ok = 0,
    GetValueReturnCode_UnknownPath = 1,    /* no style value has that path */
    GetValueReturnCode_WrongType = 2,      /* the argument list asks for another type than the style value has */
    GetValueReturnCode_BadOffset = 3,      /* an offset is missing or addresses no object */
    GetValueReturnCode_NoContext = 4,      /* the value belongs to a page or frame and there is none */
    GetValueReturnCode_BadArgument = 5     /* the argument list is malformed */
} GetValueReturnCode_e;

typedef enum
{
    SetValueReturnCode_Ok = 0,
    SetValueReturnCode_UnknownPath = 1,
    SetValueReturnCode_WrongType = 2,
    SetValueReturnCode_BadOffset = 3,
    SetValueReturnCode_NoContext = 4,
    SetValueReturnCode_BadArgument = 5,
    SetValueReturnCode_OutOfRange = 6,
    SetValueReturnCode_Refused = 7,        /* the state of the plot does not allow it */
    SetValueReturnCode_Adjusted = 15       /* accepted, but the host keeps another value than it was given */
} SetValueReturnCode_e;

/* How a set combines the new value with the old one. */
typedef enum
{
    AssignOp_Equals = 0,
    AssignOp_Default = 255                 /* plain assignment, as the style value defines it */
} AssignOp_e;

/* Messages */

typedef enum
{
    MessageBox_Error = 0,
    MessageBox_Warning = 1,
    MessageBox_Information = 2,
    MessageBox_Question = 3
} MessageBox_e;

/* Axes */

typedef enum
{
    AxisMode_Independent = 0,
    AxisMode_XYDependent = 1,
    AxisMode_XYZDependent = 2
} AxisMode_e;

typedef enum
{
    CoordScale_Linear = 0,
    CoordScale_Log = 1
} CoordScale_e;

typedef enum
{
    ThetaMode_Degrees = 0,
    ThetaMode_Radians = 1,
    ThetaMode_Arbitrary = 2
} ThetaMode_e;

typedef enum
{
    AxisAlignment_Viewport = 0,
    AxisAlignment_OpposingAxisValue = 1,
    AxisAlignment_GridMin = 2,
    AxisAlignment_GridMax = 3,
    AxisAlignment_SpecificAngle = 4,
    AxisAlignment_GridAreaTop = 5,
    AxisAlignment_GridAreaBottom = 6,
    AxisAlignment_GridAreaLeft = 7,
    AxisAlignment_GridAreaRight = 8
} AxisAlignment_e;

typedef enum
{
    AxisTitleMode_None = 0,
    AxisTitleMode_VariableName = 1,
    AxisTitleMode_Text = 2
} AxisTitleMode_e;

typedef enum
{
    LabelAlignment_ByAngle = 0,
    LabelAlignment_AlongAxis = 1,
    LabelAlignment_Perpendicular = 2
} LabelAlignment_e;

typedef enum
{
    TickDirection_In = 0,
    TickDirection_Out = 1,
    TickDirection_Centered = 2
} TickDirection_e;

/* Lines, symbols, texts */

typedef enum
{
    LinePattern_Solid = 0,
    LinePattern_Dashed = 1,
    LinePattern_DashDot = 2,
    LinePattern_Dotted = 3,
    LinePattern_LongDash = 4,
    LinePattern_DashDotDot = 5
} LinePattern_e;

typedef enum
{
    GeomShape_Square = 0,
    GeomShape_Delta = 1,
    GeomShape_Gradient = 2,
    GeomShape_RightTriangle = 3,
    GeomShape_LeftTriangle = 4,
    GeomShape_Diamond = 5,
    GeomShape_Circle = 6,
    GeomShape_Cube = 7,
    GeomShape_Sphere = 8,
    GeomShape_Octahedron = 9,
    GeomShape_Point = 10
} GeomShape_e;

typedef enum
{
    Font_Helvetica = 0,
    Font_HelveticaBold = 1,
    Font_Greek = 2,
    Font_Math = 3,
    Font_UserDefined = 4,
    Font_Times = 5,
    Font_TimesItalic = 6,
    Font_TimesBold = 7,
    Font_TimesItalicBold = 8,
    Font_Courier = 9,
    Font_CourierBold = 10
} Font_e;

typedef enum
{
    Units_Grid = 0,
    Units_Frame = 1,
    Units_Point = 2
} Units_e;

typedef enum
{
    CoordSys_Grid = 0,
    CoordSys_Frame = 1,
    CoordSys_Grid3D = 2
} CoordSys_e;

typedef enum
{
    TextBox_None = 0,
    TextBox_Filled = 1,
    TextBox_Hollow = 2
} TextBox_e;

typedef enum
{
    TextType_Regular = 0,
    TextType_LaTeX = 1
} TextType_e;

typedef enum
{
    AnchorAlignment_TopLeft = 0,
    AnchorAlignment_TopCenter = 1,
    AnchorAlignment_TopRight = 2,
    AnchorAlignment_MiddleLeft = 3,
    AnchorAlignment_MiddleCenter = 4,
    AnchorAlignment_MiddleRight = 5,
    AnchorAlignment_BottomLeft = 6,
    AnchorAlignment_BottomCenter = 7,
    AnchorAlignment_BottomRight = 8
} AnchorAlignment_e;

/* Which point of a text lies at its position. */
typedef enum
{
    TextAnchor_BottomLeft = 0,
    TextAnchor_BottomCenter = 1,
    TextAnchor_BottomRight = 2,
    TextAnchor_MiddleLeft = 3,
    TextAnchor_MiddleCenter = 4,
    TextAnchor_MiddleRight = 5,
    TextAnchor_TopLeft = 6,
    TextAnchor_TopCenter = 7,
    TextAnchor_TopRight = 8
} TextAnchor_e;

/* Field plots */

typedef enum
{
    ContourType_Lines = 0,
    ContourType_Flood = 1,
    ContourType_LinesAndFlood = 2,
    ContourType_AverageCell = 3,
    ContourType_PrimaryValue = 4
} ContourType_e;

typedef enum
{
    ContourColoring_RGB = 0,
    ContourColoring_Group1 = 1,
    ContourColoring_Group2 = 2,
    ContourColoring_Group3 = 3,
    ContourColoring_Group4 = 4,
    ContourColoring_Group5 = 5,
    ContourColoring_Group6 = 6,
    ContourColoring_Group7 = 7,
    ContourColoring_Group8 = 8
} ContourColoring_e;

typedef enum
{
    LightingEffect_Paneled = 0,
    LightingEffect_Gouraud = 1
} LightingEffect_e;

typedef enum
{
    MeshType_Wireframe = 0,
    MeshType_Overlay = 1,
    MeshType_HiddenLine = 2
} MeshType_e;

/* Which cells of a volume zone are drawn as surfaces. */
typedef enum
{
    SurfacesToPlot_None = 0,
    SurfacesToPlot_BoundaryFaces = 1,
    SurfacesToPlot_ExposedFaces = 2,
    SurfacesToPlot_IPlanes = 3,
    SurfacesToPlot_JPlanes = 4,
    SurfacesToPlot_KPlanes = 5,
    SurfacesToPlot_IJPlanes = 6,
    SurfacesToPlot_JKPlanes = 7,
    SurfacesToPlot_IKPlanes = 8,
    SurfacesToPlot_IJKPlanes = 9,
    SurfacesToPlot_EveryFace = 10
} SurfacesToPlot_e;

/* Where scatter symbols and vectors are drawn. */
typedef enum
{
    PointsToPlot_SurfaceNodes = 0,
    PointsToPlot_AllNodes = 1,
    PointsToPlot_SurfaceCellCenters = 2,
    PointsToPlot_AllCellCenters = 3
} PointsToPlot_e;

typedef enum
{
    EdgeType_Borders = 0,
    EdgeType_Creases = 1,
    EdgeType_BordersAndCreases = 2
} EdgeType_e;

typedef enum
{
    VectorType_TailAtPoint = 0,
    VectorType_HeadAtPoint = 1,
    VectorType_MidAtPoint = 2,
    VectorType_HeadOnly = 3
} VectorType_e;

typedef enum
{
    ArrowheadStyle_Plain = 0,
    ArrowheadStyle_Filled = 1,
    ArrowheadStyle_Hollow = 2
} ArrowheadStyle_e;

typedef enum
{
    Streamtrace_SurfaceLine = 0,
    Streamtrace_TwoDLine = 1,
    Streamtrace_VolumeLine = 2,
    Streamtrace_VolumeRibbon = 3,
    Streamtrace_VolumeRod = 4
} Streamtrace_e;

typedef enum
{
    StreamDir_Forward = 0,
    StreamDir_Reverse = 1,
    StreamDir_Both = 2
} StreamDir_e;

typedef enum
{
    StreamtracePlacementMethod_PlacementTool = 0,
    StreamtracePlacementMethod_SurfacesOfActiveObjects = 1,
    StreamtracePlacementMethod_SurfacesOfSelectedObjects = 2,
    StreamtracePlacementMethod_EnterXYZ = 3,
    StreamtracePlacementMethod_EnterIJK = 4
} StreamtracePlacementMethod_e;

/* Picking and probing */

typedef enum
{
    PickObject_None = 0,
    PickObject_Frame = 1,
    PickObject_Axis = 2,
    PickObject_Geometry = 4,
    PickObject_Text = 5,
    PickObject_ContourLegend = 6,
    PickObject_LineLegend = 7,
    PickObject_LineMap = 8,
    PickObject_Zone = 9,
    PickObject_Streamtrace = 15,
    PickObject_IsoSurface = 18,
    PickObject_Slice = 19
} PickObject_e;

typedef enum
{
    AxisSubObject_GridArea = 0,
    AxisSubObject_AxisLine = 1,
    AxisSubObject_Title = 2
} AxisSubObject_e;

/* What a field probe found its values in. */
typedef enum
{
    ProbeSource_Zone = 0,
    ProbeSource_Streamtrace = 1,
    ProbeSource_Slice = 2,
    ProbeSource_IsoSurface = 3
} ProbeSource_e;

/* The family of cells of an ordered zone that a probed cell belongs to. */
typedef enum
{
    IJKPlanes_I = 0,
    IJKPlanes_J = 1,
    IJKPlanes_K = 2,
    IJKPlanes_Volume = 3
} IJKPlanes_e;

typedef enum
{
    FieldProbeDialogPage_NodalValues = 0,
    FieldProbeDialogPage_CellCenteredValues = 1,
    FieldProbeDialogPage_ZoneCellInfo = 2,
    FieldProbeDialogPage_FaceNeighbors = 3
} FieldProbeDialogPage_e;

/* Operations of VtxUtilViewX(). */
typedef enum
{
    ViewOp_Fit = 0,
    ViewOp_DataFit = 1,
    ViewOp_AxisFit = 2
} ViewOp_e;

/* How numbers at ticks are written. */
typedef enum
{
    NumberFormat_Integer = 0,
    NumberFormat_FixedFloat = 1,
    NumberFormat_Exponential = 2,
    NumberFormat_BestFloat = 3,
    NumberFormat_SuperScript = 4,
    NumberFormat_RangeBestFloat = 5,
    NumberFormat_TimeDate = 9
} NumberFormat_e;

/* Blanking */

typedef enum
{
    RelOp_LessThanOrEqual = 0,
    RelOp_GreaterThanOrEqual = 1,
    RelOp_LessThan = 2,
    RelOp_GreaterThan = 3,
    RelOp_EqualTo = 4,
    RelOp_NotEqualTo = 5
} RelOp_e;

typedef enum
{
    ValueBlankCellMode_AllCorners = 0,
    ValueBlankCellMode_AnyCorner = 1,
    ValueBlankCellMode_PrimaryValue = 2
} ValueBlankCellMode_e;

typedef enum
{
    ConstraintOp2Mode_UseVar = 0,
    ConstraintOp2Mode_UseConstant = 1
} ConstraintOp2Mode_e;

/* Paper, printing, performance */

typedef enum
{
    PaperSize_Letter = 0,
    PaperSize_Double = 1,
    PaperSize_A4 = 2,
    PaperSize_A3 = 3,
    PaperSize_Custom1 = 4,
    PaperSize_Custom2 = 5
} PaperSize_e;

/* Spacing of the paper's rulers and grid. 1 and 2 count centimetres, 5 inches, 9 and 10 points. */
typedef enum
{
    PaperUnitSpacing_HalfCentimeter = 1,
    PaperUnitSpacing_OneCentimeter = 2,
    PaperUnitSpacing_TenthInch = 3,
    PaperUnitSpacing_QuarterInch = 4,
    PaperUnitSpacing_OneInch = 5,
    PaperUnitSpacing_HalfInch = 6,
    PaperUnitSpacing_EighthInch = 7,
    PaperUnitSpacing_SixteenthInch = 8,
    PaperUnitSpacing_TenPoints = 9,
    PaperUnitSpacing_TwentyFourPoints = 10
} PaperUnitSpacing_e;

typedef enum
{
    Palette_Monochrome = 0,
    Palette_PenPlotter = 1,
    Palette_Color = 2
} Palette_e;

typedef enum
{
    PrintRenderType_Vector = 0,
    PrintRenderType_Image = 1
} PrintRenderType_e;

typedef enum
{
    PlotApproximationMode_Automatic = 0,
    PlotApproximationMode_NonActiveAlwaysApproximated = 1,
    PlotApproximationMode_AllAlwaysApproximated = 2
} PlotApproximationMode_e;

typedef enum
{
    UnloadStrategy_Auto = 0,
    UnloadStrategy_NeverUnload = 1,
    UnloadStrategy_MinimizeMemoryUse = 2
} UnloadStrategy_e;

typedef enum
{
    VariableDerivationMethod_Fast = 0,
    VariableDerivationMethod_Accurate = 1
} VariableDerivationMethod_e;

#endif
