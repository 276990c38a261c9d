// Makes the text of the database from the published one: import_text PUBLISHED_LIST OUT [CORRECTIONS]

#include "importer/Files.h"
#include "importer/Importer.h"
#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 3 && argc != 4) {
        std::cerr << "Usage: import_text PUBLISHED_LIST OUT [CORRECTIONS]\n";
        return 2;
    }
    try {
        const ImportedText text = importText(argv[1], argc == 4 ? argv[3] : "");
        writeFile(argv[2], writeVerseList(text.verses));
        std::cout << "Imported " << text.verses.size() << " verses, " << text.corrections
                  << " corrections, typography rules.\n";
    } catch (const std::exception& error) {
        std::cerr << "import_text: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
