/* Enumerations for the tests of the generator. */
typedef enum
{
    StateChange_Style = 7, /* comments are no enumerators: Other = 8 */
    StateChange_View = 20
} StateChange_e;

typedef enum
{
    LinePattern_Solid = 0,
    LinePattern_Dashed = 1
} LinePattern_e;
