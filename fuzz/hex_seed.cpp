// hex_seed SEED OUT: writes the octets of a seed in hexadecimal, whose lines may end with a comment behind
// '#'.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

int main(int count, char** arguments) {
    if (count != 3)
        return 1;
    std::ifstream seed(arguments[1]);
    std::ofstream out(arguments[2], std::ios::binary);
    for (std::string line; std::getline(seed, line);) {
        line.resize(std::min(line.find('#'), line.size()));
        char* end = nullptr;
        for (const char* at = line.c_str();; at = end) {
            const unsigned long octet = strtoul(at, &end, 16);
            if (end == at)
                break;
            out.put(static_cast<char>(octet));
        }
        while (*end == ' ')
            ++end;
        if (*end != 0) {
            fprintf(stderr, "%s: no hexadecimal octets: %s\n", arguments[1], line.c_str());
            return 1;
        }
    }
    out.close();
    return out ? 0 : 1;
}
