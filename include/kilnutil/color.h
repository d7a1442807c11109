/* kilnutil color: colour models, the packed colour value, the colour list and
 * colour text.
 *
 * A packed colour value is 32 bits. With the marker bit set
 * ((value & 0x83000000) == 0x01000000) it is a direct RGB colour, red in bits
 * 0-7, green 8-15, blue 16-23. Any other non-negative value is an index into
 * the colour list; -4 is "no colour". A plain RGB triple (an unsigned int with
 * red in the low byte and no marker) is what the model conversions take and
 * return. Nothing is clamped: components outside 0-255 wrap when packed. */
#ifndef KILNUTIL_COLOR_H
#define KILNUTIL_COLOR_H

#include "kilnutil/export.h"

#if defined(_WIN32)
#  include <windows.h>
#else
typedef void* HDC;
#endif

/* Packed colour values. */
#define KILNUTIL_COLOR_RGB_MARKER 0x01000000u
#define KILNUTIL_COLOR_RGB_TEST_MASK 0x83000000u
#define KILNUTIL_COLOR_NONE (-4)
#define KILNUTIL_COLOR_FIXED_WHITE (-2)
#define KILNUTIL_COLOR_FIXED_LIGHT_GRAY (-5)
#define KILNUTIL_COLOR_FIXED_DARK_GRAY (-6)
#define KILNUTIL_COLOR_FIXED_GRAY (-7)
#define KILNUTIL_COLOR_PASS_THROUGH (-9)

/* The colour list. */
#define KILNUTIL_COLOR_LIST_CAPACITY 40
#define KILNUTIL_COLOR_NAME_SIZE 28 /* 27 bytes of UTF-8 and the terminator */
#define KILNUTIL_COLOR_BUILTIN_COUNT 24
#define KILNUTIL_COLOR_INDEX_LIMIT 99    /* color_index_to_rgb mode 0: larger indices give 0 */
#define KILNUTIL_COLOR_EXTENSION_STEP 16 /* custom colours are added 16 at a time, white */

/* Smallest buffer KILNUTIL_vcolor_format and KILNUTIL_RGB_to_HTML may be given:
 * no text they write (terminator included) is longer. */
#define KILNUTIL_COLOR_TEXT_SIZE 48

/* color_index_to_rgb modes and status. */
#define KILNUTIL_COLOR_INDEX_AS_IS 0
#define KILNUTIL_COLOR_INDEX_WRAP 1
#define KILNUTIL_COLOR_STATUS_OK 0
#define KILNUTIL_COLOR_STATUS_NOT_FOUND 1

/* color_rgb_to_index modes. */
#define KILNUTIL_COLOR_SEARCH_EXACT 0
#define KILNUTIL_COLOR_SEARCH_NEAREST 1

/* check_correct_index_color directions. */
#define KILNUTIL_COLOR_TO_ZERO_BASED 0
#define KILNUTIL_COLOR_TO_ONE_BASED 1

/* KILNUTIL_ColorToIndex / KILNUTIL_IndexToColor flag: -4 maps to offset - 1. */
#define KILNUTIL_COLOR_MAP_NONE 0x1000u

/* KILNUTIL_str2vcolor and KILNUTIL_vcolor_format: the RGB text form (mask 0xF0000). */
#define KILNUTIL_COLOR_TEXT_FORM_MASK 0xF0000u
#define KILNUTIL_COLOR_TEXT_HTML 0x00000u /* "#RRGGBB" */
#define KILNUTIL_COLOR_TEXT_RGB 0x10000u  /* "RGB(r,g,b)" */
#define KILNUTIL_COLOR_TEXT_HSL 0x20000u  /* "HSL(h,s,l)" written, "HSL(h,l,s)" read, 0-240 */

/* KILNUTIL_vcolor_format flags. */
#define KILNUTIL_COLOR_FORMAT_WITH_HTML 0x01000000u /* name + " #RRGGBB"; "%u: > %d" past the list */
#define KILNUTIL_COLOR_FORMAT_RGB_OF_INDEX 0x10000000u
#define KILNUTIL_COLOR_FORMAT_ONE_BASED 0x20000000u
#define KILNUTIL_COLOR_FORMAT_CHECK_COUNT 0x40000000u
#define KILNUTIL_COLOR_FORMAT_NUMBER_ONLY 0x80000000u

/* RGB_luminance modes. */
#define KILNUTIL_COLOR_LUMINANCE_RELATIVE 0
#define KILNUTIL_COLOR_LUMINANCE_HSL 1

/* RGB_reverse methods. */
#define KILNUTIL_COLOR_REVERSE_DEFAULT 0
#define KILNUTIL_COLOR_REVERSE_HSL 1
#define KILNUTIL_COLOR_REVERSE_LCH 2
#define KILNUTIL_COLOR_REVERSE_LAB 3

/* KILNUTIL_Color_ex commands (stable numbers). Indices are 0-based.
 *  COUNT          -> the number of colours in the list
 *  RGB            index -> its RGB (list, then custom colours), -1 beyond both
 *  RGB_WRAP       index -> RGB of index modulo the count (a negative index counts back), -1 if empty
 *  NAME           index, argument char* buffer, extra its size -> 1 and the name, 0 past the list
 *  FIND_EXACT     index is an RGB triple -> 1-based number of the first equal colour, 0 if none
 *  FIND_NEAREST   index is an RGB triple -> 0-based index of the nearest colour
 *  FIND_NAME      argument const char* name -> 1-based number (ASCII case ignored), 0 if none
 *  LOAD           argument const char* UTF-8 path of an initialisation file -> the new count,
 *                 FAILED (list unchanged) when the file has no usable "Color List" section
 *  SAVE           argument const char* path -> 1, FAILED when the file could not be rewritten
 *                 (the old file is then kept as it was)
 *  SET            index <= count < capacity, argument name (null keeps the name), extra RGB
 *                 -> 1 (index == count appends a colour), FAILED otherwise
 *  RESTORE        -> the built-in list back; custom colours dropped; returns the count
 *  SET_CUSTOM     index >= count, extra RGB -> 1; the custom-colour table grows as needed
 *  DRAW, PEN, BRUSH, DIALOG -> NOT_SUPPORTED, nothing touched (as every unknown command). */
#define KILNUTIL_COLOR_CMD_COUNT 0
#define KILNUTIL_COLOR_CMD_RGB 1
#define KILNUTIL_COLOR_CMD_RGB_WRAP 2
#define KILNUTIL_COLOR_CMD_NAME 3
#define KILNUTIL_COLOR_CMD_FIND_EXACT 4
#define KILNUTIL_COLOR_CMD_FIND_NEAREST 5
#define KILNUTIL_COLOR_CMD_FIND_NAME 6
#define KILNUTIL_COLOR_CMD_LOAD 7
#define KILNUTIL_COLOR_CMD_SAVE 8
#define KILNUTIL_COLOR_CMD_SET 9
#define KILNUTIL_COLOR_CMD_RESTORE 10
#define KILNUTIL_COLOR_CMD_SET_CUSTOM 11
#define KILNUTIL_COLOR_CMD_DRAW 100
#define KILNUTIL_COLOR_CMD_PEN 101
#define KILNUTIL_COLOR_CMD_BRUSH 102
#define KILNUTIL_COLOR_CMD_DIALOG 103
#define KILNUTIL_COLOR_FAILED (-1)
#define KILNUTIL_COLOR_NOT_SUPPORTED (-2)

/* The initialisation-file section the list is loaded from and saved to. */
#define KILNUTIL_COLOR_LIST_SECTION "Color List"

KILNUTIL_BEGIN_C

/* Model conversions on plain RGB triples. Hue in degrees unless said. */
KILNUTIL_API unsigned int HSVtoRGB(double hue, double saturation, double value);
KILNUTIL_API void RGBtoHSV(unsigned int rgb, double* hue, double* saturation, double* value);
KILNUTIL_API unsigned int LABtoRGB(double l, double a, double b);
KILNUTIL_API void RGBtoLAB(unsigned int rgb, double* l, double* a, double* b);
KILNUTIL_API unsigned int LCHtoRGB(double l, double chroma, double hue);
KILNUTIL_API void RGBtoLCH(unsigned int rgb, double* l, double* chroma, double* hue);
/* Fractions 0-1 (hue / 360); the return value carries no meaning (0). */
KILNUTIL_API int RGBtoHSL(unsigned int rgb, double* hue, double* saturation, double* lightness);
KILNUTIL_API unsigned int HSLtoRGB(double hue, double saturation, double lightness);
/* RGBtoHSL times 240. */
KILNUTIL_API int KILNUTIL_RGBtoHSL(unsigned int rgb, double* hue, double* saturation, double* lightness);
/* Integer HSL on the 0-240 scale; note the argument order hue, lightness, saturation. */
KILNUTIL_API unsigned int KILNUTIL_HLStoRGB(unsigned short hue, unsigned short lum, unsigned short sat);

/* The colour list. */
KILNUTIL_API int KILNUTIL_Color_ex(HDC dc, int index, void* argument, int command, int extra);
KILNUTIL_API unsigned int color_index_to_rgb(int index, int mode, int* status);
KILNUTIL_API int color_rgb_to_index(unsigned int rgb, int mode);
KILNUTIL_API int color_index_to_name(int index, char* buffer, int size);
KILNUTIL_API int check_correct_index_color(int* index, int direction);
KILNUTIL_API int KILNUTIL_ColorToIndex(int value, int offset, unsigned int flags);
KILNUTIL_API int KILNUTIL_IndexToColor(int number, int offset, unsigned int flags);
KILNUTIL_API int KILNUTIL_get_color_index(int value);

/* Colour text. The buffers hold at least KILNUTIL_COLOR_TEXT_SIZE bytes;
 * both return the buffer (null for a null buffer). */
KILNUTIL_API int KILNUTIL_str2vcolor(const char* text, unsigned int flags);
KILNUTIL_API char* KILNUTIL_vcolor_format(char* buffer, int value, unsigned int flags);
KILNUTIL_API char* KILNUTIL_RGB_to_HTML(char* buffer, unsigned int rgb);

/* Utilities. */
KILNUTIL_API int KILNUTIL_same_color(unsigned int a, unsigned int b, int tolerance);
KILNUTIL_API unsigned int KILNUTIL_RGBtoBGR(unsigned int value);
KILNUTIL_API double RGB_luminance(unsigned int rgb, int mode);
KILNUTIL_API unsigned int RGB_reverse(unsigned int rgb, int strength, int method);
KILNUTIL_API unsigned int RGB_reverse_by_Gray(unsigned int rgb, int strength);
KILNUTIL_API unsigned int RGB_reverse_by_HSL(unsigned int rgb, int strength);
KILNUTIL_API unsigned int RGB_reverse_by_HSV(unsigned int rgb, int strength);
KILNUTIL_API unsigned int RGB_reverse_by_LAB(unsigned int rgb, int strength);
KILNUTIL_API unsigned int RGB_reverse_by_LCH(unsigned int rgb, int strength);
/* n colours from start to end: quadratic Bezier weights over t = i / (n - 1),
 * w0 = (1 - t)^2, w1 = 2 t (1 - t), w2 = t^2 (n = 1 gives t = 0, the start
 * colour). The middle point is max(0, 255 - start - end) per channel with
 * three non-zero, else 0. marker non-zero adds 0x01000000. Returns 0. */
KILNUTIL_API int colormap_rgb_ramp(unsigned int start, unsigned int end, int n, unsigned int* out, int three,
                                   int marker);

KILNUTIL_END_C

#ifdef __cplusplus
/* The colour-model classes. Every conversion goes through Rgb; components
 * are never clamped. */
namespace ColorSpace {

struct Rgb;

struct KILNUTIL_API IColorSpace {
  virtual ~IColorSpace();
  virtual void FromRgb(const Rgb& rgb) = 0;
  virtual void ToRgb(Rgb& rgb) = 0;
  /* Copies the components into `target`, which has the same concrete type. */
  virtual void CopyTo(IColorSpace& target) = 0;
};

#  define KILNUTIL_COLOR_SPACE_MEMBERS(Type) \
    Type();                                  \
    ~Type() override;                        \
    void FromRgb(const Rgb& rgb) override;   \
    void ToRgb(Rgb& rgb) override;           \
    void CopyTo(IColorSpace& target) override

struct KILNUTIL_API Rgb : IColorSpace {
  Rgb(double r_, double g_, double b_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Rgb);
  double r, g, b; /* 0-255 */
};
struct KILNUTIL_API Xyz : IColorSpace {
  Xyz(double x_, double y_, double z_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Xyz);
  double x, y, z; /* Y = 100 for white */
};
struct KILNUTIL_API Lab : IColorSpace {
  Lab(double l_, double a_, double b_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Lab);
  double l, a, b;
};
/* ToRgb stores the hue back in radians: the object changes. */
struct KILNUTIL_API Lch : IColorSpace {
  Lch(double l_, double c_, double h_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Lch);
  double l, c, h; /* h in degrees, 0 to below 360 */
};
struct KILNUTIL_API Luv : IColorSpace {
  Luv(double l_, double u_, double v_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Luv);
  double l, u, v;
};
struct KILNUTIL_API HunterLab : IColorSpace {
  HunterLab(double l_, double a_, double b_);
  KILNUTIL_COLOR_SPACE_MEMBERS(HunterLab);
  double l, a, b;
};
struct KILNUTIL_API Yxy : IColorSpace {
  Yxy(double Y_, double x_, double y_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Yxy);
  double Y, x, y;
};
/* Saturation and lightness in percent. */
struct KILNUTIL_API Hsl : IColorSpace {
  Hsl(double h_, double s_, double l_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Hsl);
  double h, s, l;
};
/* Saturation and value as fractions 0-1. */
struct KILNUTIL_API Hsv : IColorSpace {
  Hsv(double h_, double s_, double v_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Hsv);
  double h, s, v;
};
struct KILNUTIL_API Hsb : IColorSpace {
  Hsb(double h_, double s_, double b_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Hsb);
  double h, s, b;
};
struct KILNUTIL_API Cmy : IColorSpace {
  Cmy(double c_, double m_, double y_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Cmy);
  double c, m, y;
};
struct KILNUTIL_API Cmyk : IColorSpace {
  Cmyk(double c_, double m_, double y_, double k_);
  KILNUTIL_COLOR_SPACE_MEMBERS(Cmyk);
  double c, m, y, k;
};

#  undef KILNUTIL_COLOR_SPACE_MEMBERS

/* The D65 white for the 2 degree observer, (95.047, 100, 108.883). */
KILNUTIL_API extern Xyz WhiteReference;

/* Same dynamic type: source.CopyTo(target); otherwise through an Rgb. */
KILNUTIL_API void ConvertTo(IColorSpace& source, IColorSpace& target);

}  // namespace ColorSpace
#endif /* __cplusplus */

#endif /* KILNUTIL_COLOR_H */
