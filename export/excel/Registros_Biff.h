#pragma once

#include "export/excel/Campos_Binarios.h"

/// The records of a workbook stream: numbers and layouts, with the names of the form's public
/// documents. A record is a head (number, length of the body) and a body; a body longer than its
/// form allows goes on in CONTINUE records. A layout's `ID` is the record's number; where the forms
/// number or lay out a record differently, each has its own struct, with the form in its name.
namespace Biff {

struct Cabeza {
    U16 id;
    U16 longitud;
};

constexpr qsizetype MAX_CUERPO_BIFF8 = 8224;

// Records without a layout of their own here.
enum Id : quint16 {
    END_OF_FILE = 0x000A,
    CALCCOUNT = 0x000C,
    CALCMODE = 0x000D,
    PRECISION = 0x000E,
    REFMODE = 0x000F,
    DELTA = 0x0010,
    ITERATION = 0x0011,
    PROTECT = 0x0012,
    PASSWORD = 0x0013,
    HEADER = 0x0014,
    FOOTER = 0x0015,
    EXTERNCOUNT = 0x0016,
    EXTERNSHEET = 0x0017,
    WINDOWPROTECT = 0x0019,
    DATEMODE = 0x0022,
    PRINTHEADERS = 0x002A,
    PRINTGRIDLINES = 0x002B,
    FILEPASS = 0x002F,
    CONTINUE = 0x003C,
    BACKUP = 0x0040,
    CODEPAGE = 0x0042,
    BUILTINFMTCOUNT = 0x0056,
    WRITEACCESS = 0x005C,
    SAVERECALC = 0x005F,
    GUTS = 0x0080,
    WSBOOL = 0x0081,
    GRIDSET = 0x0082,
    HCENTER = 0x0083,
    VCENTER = 0x0084,
    COUNTRY = 0x008C,
    HIDEOBJ = 0x008D,
    FNGROUPCOUNT = 0x009C,
    MULRK = 0x00BD,
    MULBLANK = 0x00BE,
    MMS = 0x00C1,
    RSTRING = 0x00D6,
    DBCELL = 0x00D7,
    BOOKBOOL = 0x00DA,
    XF_BIFF58 = 0x00E0,
    INTERFACEHDR = 0x00E1,
    INTERFACEEND = 0x00E2,
    TABID = 0x013D,
    USESELFS = 0x0160,
    DSF = 0x0161,
    SUPBOOK = 0x01AE,
    PROT4REV = 0x01AF,
    PROT4REVPASS = 0x01BC,
    REFRESHALL = 0x01B7,
    STRING = 0x0207,
    INDEX = 0x020B,
    FORMULA_BIFF58 = 0x0006,
    FORMULA_BIFF3 = 0x0206,
    FORMULA_BIFF4 = 0x0406,
    BOF_BIFF3 = 0x0209,
    BOF_BIFF4 = 0x0409,
    BOF_BIFF58 = 0x0809,
};

// Contents of a stream or of a part of it, as its BOF tells.
constexpr quint16 GLOBALES = 0x0005;
constexpr quint16 HOJA_DE_CALCULO = 0x0010;
constexpr quint16 VERSION_BIFF5 = 0x0500;
constexpr quint16 VERSION_BIFF8 = 0x0600;

struct Bof_34 {
    U16 vers, dt, reservado;
};
struct Bof_5 {
    U16 vers, dt, rup_build, rup_year;
};
struct Bof_8 {
    U16 vers, dt, rup_build, rup_year;
    U32 history, lowest_version;
};

// ---------------------------------------------------------------- looks

constexpr quint16 PESO_NORMAL = 400;
constexpr quint16 PESO_NEGRITA = 700;
constexpr quint16 COLOR_AUTOMATICO = 0x7FFF;
constexpr quint16 FUENTE_NEGRITA = 0x0001; ///< bits of grbit
constexpr quint16 FUENTE_CURSIVA = 0x0002;

struct Font_34 { // the name follows, with an 8-bit length
    static constexpr quint16 ID = 0x0231;
    U16 dy_height, grbit, icv;
};
struct Font_58 { // the name follows, with an 8-bit length
    static constexpr quint16 ID = 0x0031;
    U16 dy_height, grbit, icv, bls, sss;
    U8 uls, family, char_set, reservado;
};

struct Format_3 { // the picture follows, with an 8-bit length; its number is its place
    static constexpr quint16 ID = 0x001E;
};
struct Format_4 { // likewise
    static constexpr quint16 ID = 0x041E;
    U16 reservado;
};
struct Format_58 { // the picture follows, with an 8-bit (5) or 16-bit (8) length
    static constexpr quint16 ID = 0x041E;
    U16 ifmt;
};

constexpr quint16 FORMATO_GENERAL = 0;
constexpr quint16 FORMATO_ENTERO = 1, FORMATO_DOS_DECIMALES = 2; ///< built in: "0", "0.00"
constexpr quint16 FORMATO_TEXTO = 49;   ///< built into the later forms: the picture "@"
constexpr quint16 FORMATO_PROPIO = 164; ///< first number of a picture that the book brings

// Bits of an XF that protect its cells, tell styles from cells and name the parent style.
constexpr quint16 XF_BLOQUEADA = 0x0001;
constexpr quint16 XF_ES_ESTILO = 0x0004;
constexpr quint16 XF_SIN_PADRE = 0xFFF0;
// Attributes that a cell has of its own (in a style: that the style does not rule).
constexpr quint8 XF_ATR_NUMERO = 0x04;
constexpr quint8 XF_ATR_FUENTE = 0x08;
constexpr quint8 XF_ATR_ESTILO = 0xF4; ///< a style that rules its font only
constexpr quint8 XF_ABAJO = 0x20;      ///< vertical alignment: bottom
constexpr quint16 XF_AREA_34 = 0xCE00; ///< no pattern, window colours
constexpr quint16 XF_AREA_58 = 0x20C0;

struct Xf_3 {
    static constexpr quint16 ID = 0x0243;
    U8 ifnt, ifmt, proteccion, atributos;
    U16 alineacion_padre, area;
    U32 bordes;
};
struct Xf_4 {
    static constexpr quint16 ID = 0x0443;
    U8 ifnt, ifmt;
    U16 proteccion_padre;
    U8 alineacion, atributos;
    U16 area;
    U32 bordes;
};
struct Xf_5 {
    static constexpr quint16 ID = XF_BIFF58;
    U16 ifnt, ifmt, proteccion_padre;
    U8 alineacion, atributos;
    U32 area, bordes;
};
struct Xf_8 {
    static constexpr quint16 ID = XF_BIFF58;
    U16 ifnt, ifmt, proteccion_padre;
    U8 alineacion, giro, texto, atributos;
    U32 bordes, bordes_area;
    U16 area;
};

struct Style {
    static constexpr quint16 ID = 0x0293;
    U16 ixfe;
    U8 ist_built_in, i_level;
};
constexpr quint16 ESTILO_INTEGRADO = 0x8000;
constexpr quint8 SIN_NIVEL = 0xFF;

// ---------------------------------------------------------------- book

struct BoundSheet { // the name follows, with an 8-bit length
    static constexpr quint16 ID = 0x0085;
    U32 lb_ply_pos;
    U8 visibilidad, dt;
};
constexpr quint8 HOJA_NORMAL = 0;

struct Sst { // the texts follow
    static constexpr quint16 ID = 0x00FC;
    U32 cst_total, cst_unique;
};
struct ExtSst { // the places follow
    static constexpr quint16 ID = 0x00FF;
    U16 dsst;
};
struct IsstInf {
    U32 ib;
    U16 cb_offset, reservado;
};

// A name built into Excel, which stands for a part of a sheet. Its text and its formula follow.
struct Name_34 {
    static constexpr quint16 ID = 0x0218;
    U16 grbit;
    U8 tecla, cch;
    U16 cce;
};
struct Name_58 {
    static constexpr quint16 ID = 0x0018;
    U16 grbit;
    U8 tecla, cch;
    U16 cce, ixals, itab; ///< sheet, from 1
    U8 cch_menu, cch_descripcion, cch_ayuda, cch_estado;
};
constexpr quint16 NOMBRE_INTEGRADO = 0x0020; ///< bit of grbit
constexpr quint8 NOMBRE_AREA_IMPRESION = 0x06;
// The formula of such a name: one operand.
constexpr quint8 PTG_AREA = 0x25, PTG_AREA_3D = 0x3B;
struct Area_34 {
    U8 ptg;
    U16 rw_first, rw_last;
    U8 col_first, col_last;
};
struct Area_3D_5 {
    U8 ptg;
    U16 ixals; ///< minus the place of the sheet among the EXTERNSHEETs, from 1
    std::array<U8, 8> reservado;
    U16 itab_first, itab_last, rw_first, rw_last;
    U8 col_first, col_last;
};
struct Area_3D_8 {
    U8 ptg;
    U16 ixti, rw_first, rw_last, col_first, col_last;
};
constexpr quint16 LIBRO_PROPIO = 0x0401; ///< in SUPBOOK: the sheets are those of the book itself
constexpr quint8 HOJA_PROPIA = 0x03;     ///< in EXTERNSHEET, before the sheet's name
struct Xti {
    U16 supbook, itab_first, itab_last;
};

struct Window1_34 {
    static constexpr quint16 ID = 0x003D;
    U16 x_wn, y_wn, dx_wn, dy_wn, grbit;
};
struct Window1_58 {
    static constexpr quint16 ID = 0x003D;
    U16 x_wn, y_wn, dx_wn, dy_wn, grbit, itab_cur, itab_first, ctab_sel, w_tab_ratio;
};
constexpr quint16 VENTANA_CON_BARRAS = 0x0038; ///< both scroll bars and the tabs

// Bits of the flags of a text of the Unicode form.
constexpr quint8 TEXTO_ANCHO = 0x01; ///< two bytes a character; else one, its upper half 0
constexpr quint8 TEXTO_ASIATICO = 0x04;
constexpr quint8 TEXTO_CON_TRAMOS = 0x08;
constexpr qsizetype BYTES_POR_TRAMO_8 = 4; ///< place and font of a run of a rich text
constexpr qsizetype BYTES_POR_TRAMO_5 = 2;

// ---------------------------------------------------------------- sheet

struct DefaultRowHeight {
    static constexpr quint16 ID = 0x0225;
    U16 grbit, mi_y_rw;
};
struct DefColWidth {
    static constexpr quint16 ID = 0x0055;
    U16 cch_def_col_width;
};
struct ColInfo {
    static constexpr quint16 ID = 0x007D;
    U16 col_first, col_last, coldx, ixfe, grbit, reservado;
};
constexpr double ANCHO_UNIDADES = 256; ///< of coldx in a character

struct Dimensions_345 {
    static constexpr quint16 ID = 0x0200;
    U16 rw_mic, rw_mac, col_mic, col_mac, reservado;
};
struct Dimensions_8 {
    static constexpr quint16 ID = 0x0200;
    U32 rw_mic, rw_mac;
    U16 col_mic, col_mac, reservado;
};
struct Row {
    static constexpr quint16 ID = 0x0208;
    U16 rw, col_mic, col_mac, mi_y_rw, irw_mac, reservado, grbit, ixfe;
};
constexpr quint16 FILA_ALTO_NORMAL = 0x00FF; ///< 12.75 points, in twips
constexpr quint16 FILA_OPCIONES = 0x0100;    ///< a bit that is always set

struct Index_5 { // the places of the DBCELLs follow, 32 bits each
    static constexpr quint16 ID = INDEX;
    U32 reservado;
    U16 rw_mic, rw_mac;
    U32 ib_def_col_width;
};
struct Index_8 { // likewise
    static constexpr quint16 ID = INDEX;
    U32 reservado, rw_mic, rw_mac, ib_def_col_width;
};
struct DbCell { // the places of the rows' first cells follow, 16 bits each
    static constexpr quint16 ID = DBCELL;
    U32 db_rt_rw;
};
constexpr int FILAS_POR_BLOQUE = 32; ///< rows between two DBCELLs

struct Lugar_Celda { // how every cell record begins
    U16 rw, col, ixfe;
};
struct Blank : Lugar_Celda {
    static constexpr quint16 ID = 0x0201;
};
struct MulBlank { // the looks of each cell follow, then the last column
    static constexpr quint16 ID = MULBLANK;
    U16 rw, col_first;
};
struct MulRk { // the numbers follow, then the last column
    static constexpr quint16 ID = MULRK;
    U16 rw, col_first;
};
struct RkRec {
    U16 ixfe;
    U32 rk;
};
struct Number : Lugar_Celda {
    static constexpr quint16 ID = 0x0203;
    F64 num;
};
struct Label : Lugar_Celda { // the text follows
    static constexpr quint16 ID = 0x0204;
    U16 cch;
};
struct BoolErr : Lugar_Celda {
    static constexpr quint16 ID = 0x0205;
    U8 b_bool_err, f_error;
};
struct Rk : Lugar_Celda {
    static constexpr quint16 ID = 0x027E;
    U32 rk;
};
struct LabelSst : Lugar_Celda {
    static constexpr quint16 ID = 0x00FD;
    U32 isst;
};
struct Formula : Lugar_Celda { // the same in all forms as far as its value goes
    std::array<U8, 8> valor;
};
constexpr quint8 VALOR_NO_NUMERICO = 0xFF; ///< last two bytes of a value that is no number ...
enum Clase_Valor : quint8 { TEXTO = 0, LOGICO = 1, ERROR = 2, VACIO = 3 }; ///< ... and its first

struct Setup {
    static constexpr quint16 ID = 0x00A1;
    U16 i_paper_size, i_scale, i_page_start, i_fit_width, i_fit_height, grbit, i_res, i_v_res;
    F64 num_hdr, num_ftr;
    U16 i_copies;
};
constexpr quint16 PAPEL_A4 = 9;
constexpr quint16 PAGINA_VERTICAL = 0x0002;

struct Window2_345 {
    static constexpr quint16 ID = 0x023E;
    U16 grbit, rw_top, col_left;
    U32 rgb_hdr;
};
struct Window2_8 {
    static constexpr quint16 ID = 0x023E;
    U16 grbit, rw_top, col_left;
    U32 icv_hdr;
    U16 zoom_salto, zoom_normal;
    U32 reservado;
};
constexpr quint16 VISTA_NORMAL = 0x00B6;  ///< grid, heads, zeros, outline, automatic grid colour
constexpr quint16 VISTA_ELEGIDA = 0x0600; ///< sheet selected and in front
constexpr quint32 COLOR_REJILLA_8 = 64;   ///< system colour of the window's text

struct Selection {
    static constexpr quint16 ID = 0x001D;
    U8 pnn;
    U16 rw_act, col_act, iref_act, cref, rw_first, rw_last;
    U8 col_first, col_last;
};
constexpr quint8 PANEL_UNICO = 3;

} // namespace Biff
