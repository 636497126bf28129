// The host's published API: basic types, vector arithmetic, the records that
// pass between host and module, and the oapi functions.
#pragma once

#include <cmath>
#include <cstdint>

#include "Platform.h"

#define OAPIFUNC
#define DLLCLBK extern "C" __attribute__((visibility("default")))

#ifndef PI
#define PI 3.14159265358979323846
#endif
#define PI05 1.57079632679489661923
#define PI2 6.28318530717958647693
#define RAD (PI / 180.0)
#define DEG (180.0 / PI)

// ---------------------------------------------------------------------------
// Handles. Each is an opaque pointer of its own type, so that the compiler
// keeps them apart.
typedef struct HkObject_ *OBJHANDLE;
typedef struct HkVisual_ *VISHANDLE;
typedef struct HkMesh_ *MESHHANDLE;
typedef struct HkDevMesh_ *DEVMESHHANDLE;
typedef struct HkSurface_ *SURFHANDLE;
typedef struct HkPropellant_ *PROPELLANT_HANDLE;
typedef struct HkThruster_ *THRUSTER_HANDLE;
typedef struct HkThrusterGroup_ *THGROUP_HANDLE;
typedef struct HkNote_ *NOTEHANDLE;
typedef struct HkFile_ *FILEHANDLE;
typedef struct HkStream_ *PSTREAM_HANDLE;
typedef struct HkAttachment_ *ATTACHMENTHANDLE;
typedef struct HkDock_ *DOCKHANDLE;
typedef struct HkAirfoil_ *AIRFOILHANDLE;
typedef struct HkCtrlSurface_ *CTRLSURFHANDLE;
typedef struct HkAnimComponent_ *ANIMATIONCOMPONENT_HANDLE;

// ---------------------------------------------------------------------------
// Vectors and matrices.
struct VECTOR3 {
    double x, y, z;
    double &operator[](int i) { return i == 0 ? x : i == 1 ? y : z; }
    double operator[](int i) const { return i == 0 ? x : i == 1 ? y : z; }
};

struct VECTOR4 {
    double x, y, z, w;
};

struct MATRIX3 {
    double m11, m12, m13, m21, m22, m23, m31, m32, m33;
};

struct COLOUR4 {
    float r, g, b, a;
};

inline VECTOR3 _V(double x, double y, double z) { return VECTOR3{x, y, z}; }
inline MATRIX3 _M(double m11, double m12, double m13, double m21, double m22, double m23, double m31,
                  double m32, double m33) {
    return MATRIX3{m11, m12, m13, m21, m22, m23, m31, m32, m33};
}

inline VECTOR3 operator+(const VECTOR3 &a, const VECTOR3 &b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline VECTOR3 operator-(const VECTOR3 &a, const VECTOR3 &b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline VECTOR3 operator-(const VECTOR3 &a) { return {-a.x, -a.y, -a.z}; }
inline VECTOR3 operator*(const VECTOR3 &a, double f) { return {a.x * f, a.y * f, a.z * f}; }
inline VECTOR3 operator*(double f, const VECTOR3 &a) { return a * f; }
inline VECTOR3 operator/(const VECTOR3 &a, double f) { return {a.x / f, a.y / f, a.z / f}; }
inline VECTOR3 &operator+=(VECTOR3 &a, const VECTOR3 &b) { return a = a + b; }
inline VECTOR3 &operator-=(VECTOR3 &a, const VECTOR3 &b) { return a = a - b; }
inline VECTOR3 &operator*=(VECTOR3 &a, double f) { return a = a * f; }
inline VECTOR3 &operator/=(VECTOR3 &a, double f) { return a = a / f; }
inline bool operator==(const VECTOR3 &a, const VECTOR3 &b) { return a.x == b.x && a.y == b.y && a.z == b.z; }

inline double dotp(const VECTOR3 &a, const VECTOR3 &b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline VECTOR3 crossp(const VECTOR3 &a, const VECTOR3 &b) {
    return {a.y * b.z - b.y * a.z, a.z * b.x - b.z * a.x, a.x * b.y - b.x * a.y};
}
inline double length(const VECTOR3 &a) { return std::sqrt(dotp(a, a)); }
inline double dist(const VECTOR3 &a, const VECTOR3 &b) { return length(a - b); }
inline VECTOR3 unit(const VECTOR3 &a) {
    double l = length(a);
    return l > 0.0 ? a / l : a;
}
inline void normalise(VECTOR3 &a) { a = unit(a); }

inline MATRIX3 identity() { return {1, 0, 0, 0, 1, 0, 0, 0, 1}; }
// A * b
inline VECTOR3 mul(const MATRIX3 &A, const VECTOR3 &b) {
    return {A.m11 * b.x + A.m12 * b.y + A.m13 * b.z, A.m21 * b.x + A.m22 * b.y + A.m23 * b.z,
            A.m31 * b.x + A.m32 * b.y + A.m33 * b.z};
}
// transpose(A) * b
inline VECTOR3 tmul(const MATRIX3 &A, const VECTOR3 &b) {
    return {A.m11 * b.x + A.m21 * b.y + A.m31 * b.z, A.m12 * b.x + A.m22 * b.y + A.m32 * b.z,
            A.m13 * b.x + A.m23 * b.y + A.m33 * b.z};
}
inline MATRIX3 mul(const MATRIX3 &A, const MATRIX3 &B) {
    return {A.m11 * B.m11 + A.m12 * B.m21 + A.m13 * B.m31, A.m11 * B.m12 + A.m12 * B.m22 + A.m13 * B.m32,
            A.m11 * B.m13 + A.m12 * B.m23 + A.m13 * B.m33, A.m21 * B.m11 + A.m22 * B.m21 + A.m23 * B.m31,
            A.m21 * B.m12 + A.m22 * B.m22 + A.m23 * B.m32, A.m21 * B.m13 + A.m22 * B.m23 + A.m23 * B.m33,
            A.m31 * B.m11 + A.m32 * B.m21 + A.m33 * B.m31, A.m31 * B.m12 + A.m32 * B.m22 + A.m33 * B.m32,
            A.m31 * B.m13 + A.m32 * B.m23 + A.m33 * B.m33};
}
inline MATRIX3 transpose(const MATRIX3 &A) {
    return {A.m11, A.m21, A.m31, A.m12, A.m22, A.m32, A.m13, A.m23, A.m33};
}

// ---------------------------------------------------------------------------
// State records.
struct ELEMENTS {
    double a;      // semi-major axis [m]
    double e;      // eccentricity
    double i;      // inclination [rad]
    double theta;  // longitude of ascending node [rad]
    double omegab; // longitude of periapsis [rad]
    double L;      // mean longitude at epoch [rad]
};

struct ORBITPARAM {
    double SMi; // semi-minor axis
    double PeD; // periapsis distance
    double ApD; // apoapsis distance
    double MnA; // mean anomaly
    double TrA; // true anomaly
    double MnL; // mean longitude
    double TrL; // true longitude
    double EcA; // eccentric anomaly
    double Lec; // linear eccentricity
    double T;   // orbit period
    double PeT; // time to next periapsis passage
    double ApT; // time to next apoapsis passage
    double AgP; // argument of periapsis
};

#define FRAME_ECL 0
#define FRAME_EQU 1

struct VESSELSTATUS {
    VECTOR3 rpos, rvel; // relative to rbody, global frame axes
    VECTOR3 vrot;       // angular velocity [rad/s], vessel frame
    VECTOR3 arot;       // orientation angles [rad]
    double fuel;        // main tank level 0..1
    double eng_main;
    double eng_hovr;
    OBJHANDLE rbody;
    OBJHANDLE base;
    int port;
    int status; // 0 free, 1 landed
    VECTOR3 vdata[10];
    double fdata[10];
    DWORD flag[10];
};

struct VESSELSTATUS2 {
    DWORD version; // 2
    DWORD flag;
    OBJHANDLE rbody;
    OBJHANDLE base;
    int port;
    int status;
    VECTOR3 rpos, rvel, vrot, arot;
    double surf_lng, surf_lat, surf_hdg;
    DWORD nfuel;
    struct FUELSPEC {
        DWORD idx;
        double level;
    } * fuel;
    DWORD nthruster;
    struct THRUSTSPEC {
        DWORD idx;
        double level;
    } * thruster;
    DWORD ndockinfo;
    struct DOCKINFOSPEC {
        DWORD idx;
        DWORD ridx;
        OBJHANDLE rvessel;
    } * dockinfo;
    DWORD xpdr;
};

#define VS_FUELRESET 0x0001
#define VS_FUELLIST 0x0002
#define VS_THRUSTRESET 0x0004
#define VS_THRUSTLIST 0x0008
#define VS_DOCKINFOLIST 0x0010

struct TOUCHDOWNVTX {
    VECTOR3 pos;
    double stiffness;
    double damping;
    double mu;
    double mu_lng;
};

// ---------------------------------------------------------------------------
// Particle streams, beacons, lights.
struct PARTICLESTREAMSPEC {
    DWORD flags;
    double srcsize;
    double srcrate;
    double v0;
    double srcspread;
    double lifetime;
    double growthrate;
    double atmslowdown;
    enum LTYPE { EMISSIVE, DIFFUSE } ltype;
    enum LEVELMAP { LVL_FLAT, LVL_LIN, LVL_SQRT, LVL_PLIN, LVL_PSQRT } levelmap;
    double lmin, lmax;
    enum ATMSMAP { ATM_FLAT, ATM_PLIN, ATM_PLOG } atmsmap;
    double amin, amax;
    SURFHANDLE tex;
};

#define BEACONSHAPE_COMPACT 0
#define BEACONSHAPE_DIFFUSE 1
#define BEACONSHAPE_STAR 2

struct BEACONLIGHTSPEC {
    DWORD shape;
    VECTOR3 *pos;
    VECTOR3 *col;
    double size;
    double falloff;
    double period;
    double duration;
    double tofs;
    bool active;
};

struct EXHAUSTSPEC {
    THRUSTER_HANDLE th;
    double *level;
    VECTOR3 *lpos;
    VECTOR3 *ldir;
    double lsize, wsize;
    double lofs;
    double modulate;
    SURFHANDLE tex;
    DWORD flags;
    UINT id;
};

class LightEmitter {
  public:
    enum VISIBILITY { VIS_EXTERNAL = 1, VIS_COCKPIT = 2, VIS_ALWAYS = 3 };
    LightEmitter() = default;
    virtual ~LightEmitter() = default;
    void Activate(bool on) { active = on; }
    bool IsActive() const { return active; }
    void SetIntensity(double value) { intensity = value; }
    double GetIntensity() const { return intensity; }
    void SetPosition(const VECTOR3 &p) { pos = p; }
    VECTOR3 GetPosition() const { return pos; }
    void SetDirection(const VECTOR3 &d) { dir = d; }
    VECTOR3 GetDirection() const { return dir; }
    void SetVisibility(VISIBILITY v) { visibility = v; }
    VISIBILITY GetVisibility() const { return visibility; }

  protected:
    bool active = true;
    double intensity = 1.0;
    VECTOR3 pos{0, 0, 0};
    VECTOR3 dir{0, 0, 1};
    VISIBILITY visibility = VIS_EXTERNAL;
};

// A spot light as created by VESSEL::AddSpotLight.
class SpotLight : public LightEmitter {
  public:
    double range = 0.0;
    double att0 = 0.0, att1 = 0.0, att2 = 0.0;
    double umbra = 0.0, penumbra = 0.0;
    COLOUR4 diffuse{}, specular{}, ambient{};
};

// ---------------------------------------------------------------------------
// Meshes, materials, animations.
struct MATERIAL {
    COLOUR4 diffuse;
    COLOUR4 ambient;
    COLOUR4 specular;
    COLOUR4 emissive;
    float power;
};

struct NTVERTEX {
    float x, y, z, nx, ny, nz, tu, tv;
};

#define GRPEDIT_SETUSERFLAG 0x0001
#define GRPEDIT_ADDUSERFLAG 0x0002
#define GRPEDIT_DELUSERFLAG 0x0004

struct GROUPEDITSPEC {
    DWORD flags;
    DWORD UsrFlag;
    NTVERTEX *Vtx;
    DWORD nVtx;
    WORD *vIdx;
};

#define MESHVIS_NEVER 0x00
#define MESHVIS_EXTERNAL 0x01
#define MESHVIS_COCKPIT 0x02
#define MESHVIS_ALWAYS (MESHVIS_EXTERNAL | MESHVIS_COCKPIT)
#define MESHVIS_VC 0x04
#define MESHVIS_EXTPASS 0x10

#define MESHPROPERTY_MODULATEMATALPHA 1

class MGROUP_TRANSFORM {
  public:
    enum TYPE { NULLTRANSFORM, ROTATE, TRANSLATE, SCALE };
    MGROUP_TRANSFORM() = default;
    MGROUP_TRANSFORM(UINT mesh_, UINT *grp_, UINT ngrp_) : mesh(mesh_), grp(grp_), ngrp(ngrp_) {}
    virtual ~MGROUP_TRANSFORM() = default;
    virtual TYPE Type() const { return NULLTRANSFORM; }
    UINT mesh = 0;
    UINT *grp = nullptr;
    UINT ngrp = 0;
};

class MGROUP_ROTATE : public MGROUP_TRANSFORM {
  public:
    MGROUP_ROTATE(UINT mesh_, UINT *grp_, UINT ngrp_, const VECTOR3 &ref_, const VECTOR3 &axis_, float angle_)
        : MGROUP_TRANSFORM(mesh_, grp_, ngrp_), ref(ref_), axis(axis_), angle(angle_) {}
    TYPE Type() const override { return ROTATE; }
    VECTOR3 ref;
    VECTOR3 axis;
    float angle;
};

class MGROUP_TRANSLATE : public MGROUP_TRANSFORM {
  public:
    MGROUP_TRANSLATE(UINT mesh_, UINT *grp_, UINT ngrp_, const VECTOR3 &shift_)
        : MGROUP_TRANSFORM(mesh_, grp_, ngrp_), shift(shift_) {}
    TYPE Type() const override { return TRANSLATE; }
    VECTOR3 shift;
};

class MGROUP_SCALE : public MGROUP_TRANSFORM {
  public:
    MGROUP_SCALE(UINT mesh_, UINT *grp_, UINT ngrp_, const VECTOR3 &ref_, const VECTOR3 &scale_)
        : MGROUP_TRANSFORM(mesh_, grp_, ngrp_), ref(ref_), scale(scale_) {}
    TYPE Type() const override { return SCALE; }
    VECTOR3 ref;
    VECTOR3 scale;
};

// ---------------------------------------------------------------------------
// Thrusters and control.
enum THGROUP_TYPE {
    THGROUP_MAIN = 0,
    THGROUP_RETRO = 1,
    THGROUP_HOVER = 2,
    THGROUP_ATT_PITCHUP = 3,
    THGROUP_ATT_PITCHDOWN = 4,
    THGROUP_ATT_YAWLEFT = 5,
    THGROUP_ATT_YAWRIGHT = 6,
    THGROUP_ATT_BANKLEFT = 7,
    THGROUP_ATT_BANKRIGHT = 8,
    THGROUP_ATT_RIGHT = 9,
    THGROUP_ATT_LEFT = 10,
    THGROUP_ATT_UP = 11,
    THGROUP_ATT_DOWN = 12,
    THGROUP_ATT_FORWARD = 13,
    THGROUP_ATT_BACK = 14,
    THGROUP_USER = 0x40
};

#define MANCTRL_ATTMODE 0
#define MANCTRL_REVMODE 1
#define MANCTRL_ROTMODE 2
#define MANCTRL_LINMODE 3
#define MANCTRL_ANYMODE 4
#define MANCTRL_KEYBOARD 0
#define MANCTRL_JOYSTICK 1
#define MANCTRL_ANYDEVICE 2

#define RCS_NONE 0
#define RCS_ROT 1
#define RCS_LIN 2

#define NAVMODE_KILLROT 1
#define NAVMODE_HLEVEL 2
#define NAVMODE_PROGRADE 3
#define NAVMODE_RETROGRADE 4
#define NAVMODE_NORMAL 5
#define NAVMODE_ANTINORMAL 6
#define NAVMODE_HOLDALT 7

// ---------------------------------------------------------------------------
// Aerodynamics.
enum AIRFOIL_ORIENTATION { LIFT_VERTICAL = 0, LIFT_HORIZONTAL = 1 };

class VESSEL;
typedef void (*AirfoilCoeffFunc)(double aoa, double M, double Re, double *cl, double *cm, double *cd);
typedef void (*AirfoilCoeffFuncEx)(VESSEL *v, double aoa, double M, double Re, void *context, double *cl,
                                   double *cm, double *cd);

// ---------------------------------------------------------------------------
// Files.
enum FileAccessMode { FILE_IN, FILE_OUT, FILE_APP, FILE_IN_ZEROONFAIL };
enum PathRoot { ROOT, CONFIG, SCENARIOS, TEXTURES, TEXTURES2, MESHES, MODULES };

// ---------------------------------------------------------------------------
// Keys: the host's keyboard scan codes. A key state buffer holds one byte per
// code; bit 7 is set while the key is down.
#define KEYDOWN(buf, key) (((buf)[key] & 0x80) != 0)
#define KEYMOD_LSHIFT(buf) KEYDOWN(buf, OAPI_KEY_LSHIFT)
#define KEYMOD_RSHIFT(buf) KEYDOWN(buf, OAPI_KEY_RSHIFT)
#define KEYMOD_SHIFT(buf) (KEYMOD_LSHIFT(buf) || KEYMOD_RSHIFT(buf))
#define KEYMOD_LCONTROL(buf) KEYDOWN(buf, OAPI_KEY_LCONTROL)
#define KEYMOD_RCONTROL(buf) KEYDOWN(buf, OAPI_KEY_RCONTROL)
#define KEYMOD_CONTROL(buf) (KEYMOD_LCONTROL(buf) || KEYMOD_RCONTROL(buf))
#define KEYMOD_LALT(buf) KEYDOWN(buf, OAPI_KEY_LALT)
#define KEYMOD_RALT(buf) KEYDOWN(buf, OAPI_KEY_RALT)
#define KEYMOD_ALT(buf) (KEYMOD_LALT(buf) || KEYMOD_RALT(buf))
#define RESETKEY(buf, key) ((buf)[key] = 0)

#define OAPI_KEY_ESCAPE 0x01
#define OAPI_KEY_1 0x02
#define OAPI_KEY_2 0x03
#define OAPI_KEY_3 0x04
#define OAPI_KEY_4 0x05
#define OAPI_KEY_5 0x06
#define OAPI_KEY_6 0x07
#define OAPI_KEY_7 0x08
#define OAPI_KEY_8 0x09
#define OAPI_KEY_9 0x0A
#define OAPI_KEY_0 0x0B
#define OAPI_KEY_MINUS 0x0C
#define OAPI_KEY_EQUALS 0x0D
#define OAPI_KEY_BACK 0x0E
#define OAPI_KEY_TAB 0x0F
#define OAPI_KEY_Q 0x10
#define OAPI_KEY_W 0x11
#define OAPI_KEY_E 0x12
#define OAPI_KEY_R 0x13
#define OAPI_KEY_T 0x14
#define OAPI_KEY_Y 0x15
#define OAPI_KEY_U 0x16
#define OAPI_KEY_I 0x17
#define OAPI_KEY_O 0x18
#define OAPI_KEY_P 0x19
#define OAPI_KEY_LBRACKET 0x1A
#define OAPI_KEY_RBRACKET 0x1B
#define OAPI_KEY_RETURN 0x1C
#define OAPI_KEY_LCONTROL 0x1D
#define OAPI_KEY_A 0x1E
#define OAPI_KEY_S 0x1F
#define OAPI_KEY_D 0x20
#define OAPI_KEY_F 0x21
#define OAPI_KEY_G 0x22
#define OAPI_KEY_H 0x23
#define OAPI_KEY_J 0x24
#define OAPI_KEY_K 0x25
#define OAPI_KEY_L 0x26
#define OAPI_KEY_SEMICOLON 0x27
#define OAPI_KEY_APOSTROPHE 0x28
#define OAPI_KEY_GRAVE 0x29
#define OAPI_KEY_LSHIFT 0x2A
#define OAPI_KEY_BACKSLASH 0x2B
#define OAPI_KEY_Z 0x2C
#define OAPI_KEY_X 0x2D
#define OAPI_KEY_C 0x2E
#define OAPI_KEY_V 0x2F
#define OAPI_KEY_B 0x30
#define OAPI_KEY_N 0x31
#define OAPI_KEY_M 0x32
#define OAPI_KEY_COMMA 0x33
#define OAPI_KEY_PERIOD 0x34
#define OAPI_KEY_SLASH 0x35
#define OAPI_KEY_RSHIFT 0x36
#define OAPI_KEY_MULTIPLY 0x37
#define OAPI_KEY_LALT 0x38
#define OAPI_KEY_SPACE 0x39
#define OAPI_KEY_CAPITAL 0x3A
#define OAPI_KEY_F1 0x3B
#define OAPI_KEY_F2 0x3C
#define OAPI_KEY_F3 0x3D
#define OAPI_KEY_F4 0x3E
#define OAPI_KEY_F5 0x3F
#define OAPI_KEY_F6 0x40
#define OAPI_KEY_F7 0x41
#define OAPI_KEY_F8 0x42
#define OAPI_KEY_F9 0x43
#define OAPI_KEY_F10 0x44
#define OAPI_KEY_NUMLOCK 0x45
#define OAPI_KEY_SCROLL 0x46
#define OAPI_KEY_NUMPAD7 0x47
#define OAPI_KEY_NUMPAD8 0x48
#define OAPI_KEY_NUMPAD9 0x49
#define OAPI_KEY_SUBTRACT 0x4A
#define OAPI_KEY_NUMPAD4 0x4B
#define OAPI_KEY_NUMPAD5 0x4C
#define OAPI_KEY_NUMPAD6 0x4D
#define OAPI_KEY_ADD 0x4E
#define OAPI_KEY_NUMPAD1 0x4F
#define OAPI_KEY_NUMPAD2 0x50
#define OAPI_KEY_NUMPAD3 0x51
#define OAPI_KEY_NUMPAD0 0x52
#define OAPI_KEY_DECIMAL 0x53
#define OAPI_KEY_OEM_102 0x56
#define OAPI_KEY_F11 0x57
#define OAPI_KEY_F12 0x58
#define OAPI_KEY_NUMPADENTER 0x9C
#define OAPI_KEY_RCONTROL 0x9D
#define OAPI_KEY_DIVIDE 0xB5
#define OAPI_KEY_SYSRQ 0xB7
#define OAPI_KEY_RALT 0xB8
#define OAPI_KEY_PAUSE 0xC5
#define OAPI_KEY_HOME 0xC7
#define OAPI_KEY_UP 0xC8
#define OAPI_KEY_PRIOR 0xC9
#define OAPI_KEY_LEFT 0xCB
#define OAPI_KEY_RIGHT 0xCD
#define OAPI_KEY_END 0xCF
#define OAPI_KEY_DOWN 0xD0
#define OAPI_KEY_NEXT 0xD1
#define OAPI_KEY_INSERT 0xD2
#define OAPI_KEY_DELETE 0xD3

// ---------------------------------------------------------------------------
// Cockpit and HUD.
#define COCKPIT_GENERIC 1
#define COCKPIT_PANELS 2
#define COCKPIT_VIRTUAL 3

#define HUD_NONE 0
#define HUD_ORBIT 1
#define HUD_SURFACE 2
#define HUD_DOCKING 3

struct HUDPAINTSPEC {
    int W, H;
    int CX, CY;
    double Scale;
    int Markersize;
};

namespace oapi {
class Sketchpad;
class Pen;
class Brush;
class Font;
} // namespace oapi

// ---------------------------------------------------------------------------
// The oapi functions.
class VESSEL;

// Objects and vessels.
OBJHANDLE oapiGetObjectByName(const char *name);
OBJHANDLE oapiGetVesselByName(const char *name);
OBJHANDLE oapiGetGbodyByName(const char *name);
DWORD oapiGetVesselCount();
OBJHANDLE oapiGetVesselByIndex(int index);
bool oapiIsVessel(OBJHANDLE h);
VESSEL *oapiGetVesselInterface(OBJHANDLE h);
void oapiGetObjectName(OBJHANDLE h, char *name, int n);
OBJHANDLE oapiGetFocusObject();
OBJHANDLE oapiSetFocusObject(OBJHANDLE h);
VESSEL *oapiGetFocusInterface();
OBJHANDLE oapiCreateVessel(const char *name, const char *classname, const VESSELSTATUS &status);
OBJHANDLE oapiCreateVesselEx(const char *name, const char *classname, const void *status);
bool oapiDeleteVessel(OBJHANDLE h, OBJHANDLE hAlternativeCameraTarget = nullptr);

// Bodies and positions.
double oapiGetMass(OBJHANDLE h);
double oapiGetSize(OBJHANDLE h);
void oapiGetGlobalPos(OBJHANDLE h, VECTOR3 *pos);
void oapiGetGlobalVel(OBJHANDLE h, VECTOR3 *vel);
void oapiGetRelativePos(OBJHANDLE from, OBJHANDLE to, VECTOR3 *pos);
void oapiGetRelativeVel(OBJHANDLE from, OBJHANDLE to, VECTOR3 *vel);
void oapiGetRotationMatrix(OBJHANDLE h, MATRIX3 *mat);
bool oapiGetHeading(OBJHANDLE h, double *heading);
bool oapiGetAltitude(OBJHANDLE h, double *alt);
bool oapiPlanetHasAtmosphere(OBJHANDLE h);
void oapiGetAtmPressureDensity(OBJHANDLE h, double *pressure, double *density);
double oapiGetPlanetPeriod(OBJHANDLE h);

// Time.
double oapiGetSimTime();
double oapiGetSimStep();
double oapiGetSysStep();
double oapiGetSysTime();
double oapiGetSimMJD();
double oapiGetTimeAcceleration();
void oapiSetTimeAcceleration(double warp);

// Scenario files.
bool oapiReadScenario_nextline(FILEHANDLE scn, char *&line);
void oapiWriteScenario_string(FILEHANDLE scn, const char *item, const char *string);
void oapiWriteScenario_int(FILEHANDLE scn, const char *item, int i);
void oapiWriteScenario_float(FILEHANDLE scn, const char *item, double d);
void oapiWriteScenario_vec(FILEHANDLE scn, const char *item, const VECTOR3 &vec);
void oapiWriteLine(FILEHANDLE file, char *line);
FILEHANDLE oapiOpenFile(const char *fname, FileAccessMode mode, PathRoot root = ROOT);
void oapiCloseFile(FILEHANDLE f, FileAccessMode mode);

// Log, debug string.
void oapiWriteLog(const char *line);
char *oapiDebugString();

// Annotations.
NOTEHANDLE oapiCreateAnnotation(bool exclusive, double size, const VECTOR3 &col);
bool oapiDelAnnotation(NOTEHANDLE hNote);
void oapiAnnotationSetPos(NOTEHANDLE hNote, double x1, double y1, double x2, double y2);
void oapiAnnotationSetSize(NOTEHANDLE hNote, double size);
void oapiAnnotationSetColour(NOTEHANDLE hNote, const VECTOR3 &col);
void oapiAnnotationSetText(NOTEHANDLE hNote, char *note);

// Meshes, textures, materials.
MESHHANDLE oapiLoadMesh(const char *fname);
MESHHANDLE oapiLoadMeshGlobal(const char *fname);
DWORD oapiMeshGroupCount(MESHHANDLE hMesh);
DWORD oapiMeshMaterialCount(MESHHANDLE hMesh);
MATERIAL *oapiMeshMaterial(MESHHANDLE hMesh, DWORD idx);
int oapiSetMaterial(DEVMESHHANDLE hMesh, int matidx, const MATERIAL *mat);
bool oapiSetMeshProperty(MESHHANDLE hMesh, DWORD property, DWORD value);
bool oapiSetMeshProperty(DEVMESHHANDLE hMesh, DWORD property, DWORD value);
int oapiEditMeshGroup(DEVMESHHANDLE hMesh, DWORD grpidx, GROUPEDITSPEC *ges);
int oapiEditMeshGroup(MESHHANDLE hMesh, DWORD grpidx, GROUPEDITSPEC *ges);
SURFHANDLE oapiLoadTexture(const char *fname, bool dynamic = false);
SURFHANDLE oapiRegisterExhaustTexture(char *name);
SURFHANDLE oapiRegisterParticleTexture(char *name);
SURFHANDLE oapiRegisterReentryTexture(char *name);
SURFHANDLE oapiCreateSurface(HBITMAP hBmp, bool release_bmp = true);
bool oapiSetTexture(DEVMESHHANDLE hMesh, DWORD texidx, SURFHANDLE tex);

// Camera and cockpit.
bool oapiCameraInternal();
int oapiCockpitMode();
void oapiCameraSetCockpitDir(double polar, double azimuth, bool transition = false);
OBJHANDLE oapiCameraTarget();

// Drawing resources for the head-up display.
oapi::Pen *oapiCreatePen(int style, int width, DWORD col);
void oapiReleasePen(oapi::Pen *pen);
