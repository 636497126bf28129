#include "mesh_loader.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <limits>
#include <string_view>

namespace hullhost {

namespace {

constexpr size_t kMaxNotes = 5;
constexpr size_t kMaxGroupVertices = size_t{std::numeric_limits<WORD>::max()} + 1;

std::string_view Trim(std::string_view s) {
    const size_t b = s.find_first_not_of(" \t");
    if (b == std::string_view::npos)
        return {};
    const size_t e = s.find_last_not_of(" \t");
    return s.substr(b, e - b + 1);
}

// The blank-separated words of a line, without its comment.
std::vector<std::string_view> Words(std::string_view line) {
    line = line.substr(0, line.find(';'));
    std::vector<std::string_view> words;
    size_t i = 0;
    while (i < line.size()) {
        i = line.find_first_not_of(" \t", i);
        if (i == std::string_view::npos)
            break;
        size_t e = line.find_first_of(" \t", i);
        if (e == std::string_view::npos)
            e = line.size();
        words.push_back(line.substr(i, e - i));
        i = e;
    }
    return words;
}

bool ToFloat(std::string_view w, float &out) {
    float v = 0;
    auto [end, ec] = std::from_chars(w.data(), w.data() + w.size(), v);
    if (ec != std::errc() || end != w.data() + w.size() || !std::isfinite(v))
        return false;
    out = v;
    return true;
}

template <typename Int> bool ToInt(std::string_view w, Int &out) {
    Int v = 0;
    auto [end, ec] = std::from_chars(w.data(), w.data() + w.size(), v);
    if (ec != std::errc() || end != w.data() + w.size())
        return false;
    out = v;
    return true;
}

// Reads words[1..] as floats into `out`; false unless every word is a number.
bool Floats(const std::vector<std::string_view> &words, float *out) {
    for (size_t i = 1; i < words.size(); ++i)
        if (!ToFloat(words[i], out[i - 1]))
            return false;
    return true;
}

class Parser {
  public:
    Parser(Mesh &mesh, MeshLoadNotes &notes) : mesh_(mesh), notes_(notes) {}

    void Line(int number, std::string_view raw) {
        line_ = number;
        const std::string_view text = Trim(raw);
        const size_t label = text.find("LABEL");
        if (label != std::string_view::npos) {
            // Every line with the word opens a group, so that the group
            // numbers agree with a plain count of such lines.
            if (label != 0)
                Note("LABEL not at the start of the line");
            mesh_.groups.push_back(MeshGroup{});
            mesh_.groups.back().label = std::string(Trim(text.substr(label + 5)));
            return;
        }
        const auto words = Words(text);
        if (words.empty())
            return;
        if (!Keyword(words))
            Note("skipped: " + std::string(text.substr(0, 40)));
    }

  private:
    bool Keyword(const std::vector<std::string_view> &w) {
        const std::string_view key = w[0];
        if (key == "HKMESH")
            return w.size() == 2 && w[1] == "1";
        if (key == "MATERIAL" && w.size() <= 2) {
            mesh_.materials.push_back(kDefaultMaterial);
            return true;
        }
        if (key == "TEXTURE")
            return w.size() == 2 && (mesh_.textureNames.emplace_back(w[1]), true);
        if (key == "DIFFUSE" || key == "AMBIENT" || key == "SPECULAR" || key == "EMISSIVE")
            return Colour(w);
        if (key == "POWER") {
            float p = 0;
            if (mesh_.materials.empty() || w.size() != 2 || !ToFloat(w[1], p))
                return false;
            mesh_.materials.back().power = p;
            return true;
        }
        if (mesh_.groups.empty())
            return false; // the rest belong to a group
        MeshGroup &g = mesh_.groups.back();
        if (key == "MAT")
            return w.size() == 2 && ToInt(w[1], g.material);
        if (key == "TEX")
            return w.size() == 2 && ToInt(w[1], g.texture);
        if (key == "FLAG")
            return w.size() == 2 && ToInt(w[1], g.userFlag);
        if (key == "V")
            return Vertex(w, g);
        if (key == "T")
            return Triangle(w, g);
        return false;
    }

    bool Colour(const std::vector<std::string_view> &w) {
        float c[4] = {0, 0, 0, 1};
        if (mesh_.materials.empty() || (w.size() != 4 && w.size() != 5) || !Floats(w, c))
            return false;
        MATERIAL &m = mesh_.materials.back();
        COLOUR4 &dst = w[0] == "DIFFUSE"    ? m.diffuse
                       : w[0] == "AMBIENT"  ? m.ambient
                       : w[0] == "SPECULAR" ? m.specular
                                            : m.emissive;
        dst = {c[0], c[1], c[2], c[3]};
        return true;
    }

    bool Vertex(const std::vector<std::string_view> &w, MeshGroup &g) {
        float f[8] = {0, 0, 0, 0, 0, 0, 0, 0};
        if ((w.size() != 4 && w.size() != 7 && w.size() != 9) || !Floats(w, f))
            return false;
        if (g.vertices.size() >= kMaxGroupVertices)
            return false;
        g.vertices.push_back({f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7]});
        return true;
    }

    static bool Triangle(const std::vector<std::string_view> &w, MeshGroup &g) {
        WORD idx[3];
        if (w.size() != 4)
            return false;
        for (int i = 0; i < 3; ++i)
            if (!ToInt(w[i + 1], idx[i]))
                return false;
        g.indices.insert(g.indices.end(), idx, idx + 3);
        return true;
    }

    void Note(const std::string &what) { notes_.Add(line_, what); }

    Mesh &mesh_;
    MeshLoadNotes &notes_;
    int line_ = 0;
};

// References that point past what the file declares: a triangle with a
// missing vertex goes, a missing material or texture becomes none.
void Validate(Mesh &mesh, MeshLoadNotes &notes) {
    for (size_t gi = 0; gi < mesh.groups.size(); ++gi) {
        MeshGroup &g = mesh.groups[gi];
        const std::string where = "group " + std::to_string(gi);
        if (g.material < -1 || g.material >= static_cast<int>(mesh.materials.size())) {
            notes.Add(0, where + ": no material " + std::to_string(g.material));
            g.material = -1;
        }
        if (g.texture > mesh.textureNames.size()) {
            notes.Add(0, where + ": no texture " + std::to_string(g.texture));
            g.texture = 0;
        }
        size_t kept = 0;
        for (size_t t = 0; t + 2 < g.indices.size(); t += 3) {
            if (g.indices[t] >= g.vertices.size() || g.indices[t + 1] >= g.vertices.size() ||
                g.indices[t + 2] >= g.vertices.size()) {
                notes.Add(0, where + ": triangle " + std::to_string(t / 3) + " past the vertices");
                continue;
            }
            for (size_t k = 0; k < 3; ++k)
                g.indices[kept++] = g.indices[t + k];
        }
        g.indices.resize(kept);
    }
}

} // namespace

void MeshLoadNotes::Add(int line, const std::string &what) {
    ++skipped;
    if (first.size() < kMaxNotes)
        first.push_back(line > 0 ? "line " + std::to_string(line) + ": " + what : what);
}

Mesh ParseMesh(std::istream &in, MeshLoadNotes &notes) {
    Mesh mesh;
    Parser parser(mesh, notes);
    std::string line;
    int number = 0;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        parser.Line(++number, line);
    }
    Validate(mesh, notes);
    return mesh;
}

std::unique_ptr<Mesh> LoadMeshFile(const std::string &path, MeshLoadNotes &notes) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return nullptr;
    return std::make_unique<Mesh>(ParseMesh(in, notes));
}

} // namespace hullhost
