#include "Host/Cli/CommandLine.h"

#include <CLI/CLI.hpp>
#include <exception>
#include <functional>
#include <new>
#include <ostream>
#include <sstream>
#include <string>

#include "Host/Cli/AssertLines.h"
#include "Host/Cli/ConvertCommand.h"
#include "Host/Cli/DiffCommand.h"
#include "Host/Cli/DrawCommand.h"
#include "Host/Cli/ExtractCommand.h"
#include "Host/Cli/GetCommand.h"
#include "Host/Cli/InfoCommand.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/MeasureCommand.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Cli/PropertiesCommand.h"
#include "Host/Cli/StatusCommand.h"
#include "Host/Cli/TreeCommand.h"

namespace qor::host::cli {

namespace {

/// The command line with its options, and the command that it names once it is parsed.
class CommandLine {
 public:
  CommandLine() {
    m_app.require_subcommand(1);
    m_app.set_version_flag("--version", FCTOOL_VERSION);
    m_app.footer(
        "FILE may be - for standard input, and that of a model to write for standard output.\n"
        "Exits with 0, 1 (the file has problems, all reported) or 2 (it can't be done).");
    addInfo();
    addTree();
    addGet();
    addProperties();
    addExtract();
    addDiff();
    addConvert();
    addDraw();
    addMeasure();
    addStatus();
  }
  CommandLine(const CommandLine&) = delete;  // the parser points at the options
  CommandLine& operator=(const CommandLine&) = delete;

  ExitCode run(int argc, const char* const* argv, Console& console) {
    try {
      m_app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
      return finish(error, console);
    }
    console.verbose = m_verbose;
    const AssertLines asserts(console.err, console.watch);
    const ExitCode code = m_command(console);
    return code == ExitCode::success && asserts.count() > 0 ? ExitCode::problems : code;
  }

 private:
  template <class Options, class Command>
  CLI::App& add(const char* name, const char* description, Options& options, Command runCommand) {
    CLI::App& command = *m_app.add_subcommand(name, description);
    command.add_flag("--json", options.json, "Print JSON, for programs");
    command.add_flag("--verbose", m_verbose,
                     "List what of an older schema has no place in IFC4X3_ADD2");
    command.callback([this, &options, runCommand] {
      m_command = [&options, runCommand](Console& console) { return runCommand(options, console); };
    });
    return command;
  }

  void addInfo() {
    add("info", "Schema, counts by class, units and problems of a file", m_info, runInfo)
        .add_option("FILE", m_info.file, "The STEP file")
        ->required();
  }
  void addTree() {
    add("tree", "Project, sites, buildings, storeys, spaces and elements", m_tree, runTree)
        .add_option("FILE", m_tree.file, "The STEP file")
        ->required();
  }
  void addGet() {
    CLI::App& command = add("get", "All attributes of one entity", m_get, runGet);
    command.add_option("FILE", m_get.file, "The STEP file")->required();
    CLI::Option_group& key = *command.add_option_group("entity", "One of these is needed");
    key.add_option("--guid", m_get.guid, "Its guid");
    key.add_option("--id", m_get.id, "Its number in the file, 12 for #12");
    key.require_option(1);
  }
  void addProperties() {
    CLI::App& command =
        add("properties", "Property sets and quantities, merged with those of types", m_properties,
            runProperties);
    command.add_option("FILE", m_properties.file, "The STEP file")->required();
    command.add_option("--guid", m_properties.guid, "Of this object or type alone");
  }
  void addExtract() {
    CLI::App& command =
        add("extract", "Write some objects with what they need", m_extract, runExtract);
    command.add_option("FILE", m_extract.input, "The STEP file to read")->required();
    command.add_option("--guid", m_extract.guids, "The objects to write")->required();
    command.add_option("-o,--output", m_extract.output, "The file to write; replaced at once")
        ->required();
  }
  void addDiff() {
    CLI::App& command =
        add("diff", "What is new, gone and changed in the second of two files", m_diff, runDiff);
    command.add_option("A", m_diff.before, "The STEP file to compare with")->required();
    command.add_option("B", m_diff.after, "The STEP file to look into")->required();
  }
  void addConvert() {
    CLI::App& command = add("convert", "Read a file and write it as IFC4X3_ADD2, in SI units",
                            m_convert, runConvert);
    command.add_option("IN", m_convert.input, "The STEP file to read")->required();
    command.add_option("OUT", m_convert.output, "The file to write; replaced at once")->required();
    command.add_flag("--keep-units", m_convert.keepUnits,
                     "Leave numbers and units as they are; else the output is in SI units");
  }

  void addDrawing(CLI::App& command, DrawingOptions& options) {
    command.add_option("FILE", options.file, "The STEP file")->required();
    command.add_option("--context", options.context,
                       "Draw the representations with this identifier alone: Axis, FootPrint ...");
    command.add_option("--id", options.id, "Draw one entity alone, 12 for #12");
    command.add_option("--chord", options.chord,
                       "Millimetres between a circle and its segments; 2 if not given");
    command.add_option("--segments", options.segments,
                       "Segments of a circle, at least and at most; 16,72 if not given");
    command.add_option("--status", options.status, "File of a draw status");
    command.add_flag("--no-openings", options.noOpenings,
                     "Leave bodies as they are before their openings are cut out");
    command.add_option("--why", options.why, "Say of each product why it isn't drawn, or of one")
        ->expected(0, 1)
        ->type_name("[GUID]");
    command.add_flag("--skip-expensive", options.skipExpensive,
                     "Leave out cuts by tessellated bodies and boundary representations");
  }
  void addDraw() {
    CLI::App& command = add("draw", "A mesh or a picture of a model", m_draw, runDraw);
    addDrawing(command, m_draw);
    command.add_option("-o", m_draw.outputs, "A file to write: .glb, .obj, .png or .svg")
        ->allow_extra_args(false);
    command.add_flag("--trace", m_draw.trace, "Print each call that a draw target gets")
        ->excludes("--why");
    command.add_flag("--spaces", m_draw.spaces, "Show spaces too, which cover what is in them");
    command.add_flag("--openings", m_draw.openings, "Show openings too, as bodies");
    command.add_option("--view", m_draw.view, "Of pictures: plan, front, side or iso");
    command.add_option("--size", m_draw.size, "Pixels of a .png, such as 1600x1200");
  }
  void addMeasure() {
    CLI::App& command =
        add("measure", "Box, area and volume of each product", m_measure, runMeasure);
    addDrawing(command, m_measure);
    command
        .add_flag("--surfaces", m_measure.surfaces,
                  "Outlines of the planar faces of each body instead")
        ->excludes("--why");
    command
        .add_option("--distance", m_measure.distance,
                    "The least distance between the bodies of two objects instead")
        ->expected(2)
        ->excludes("--why")
        ->type_name("GUID");
  }
  void addStatus() {
    CLI::App& command = add("status", "What is hidden when a model is drawn", m_status, runStatus);
    command.add_option("FILE", m_status.file, "The STEP file")->required();
    command.add_option("--status", m_status.status, "File of a draw status to begin with");
    command.add_option("--disable", m_status.disable, "Classes and guids to hide");
    command.add_option("--write", m_status.write, "Store the draw status as XML");
  }

  /// Help and version are errors of the parser that end well.
  ExitCode finish(const CLI::ParseError& error, Console& console) {
    if (error.get_exit_code() != 0)
      return refuse(console, printable(error.what()) + "; see fctool --help");
    std::ostringstream ignored;
    m_app.exit(error, console.out, ignored);
    return ExitCode::success;
  }

  CLI::App m_app{"Looks into IFC models in STEP files, draws and converts them.", "fctool"};
  bool m_verbose = false;
  InfoOptions m_info;
  TreeOptions m_tree;
  GetOptions m_get;
  PropertiesOptions m_properties;
  ExtractOptions m_extract;
  DiffOptions m_diff;
  ConvertOptions m_convert;
  DrawOptions m_draw;
  MeasureOptions m_measure;
  StatusOptions m_status;
  std::function<ExitCode(Console&)> m_command;
};

}  // namespace

ExitCode runFctool(int argc, const char* const* argv, Console& console) noexcept try {
  return CommandLine().run(argc, argv, console);
} catch (const std::bad_alloc&) {
  console.err << "fctool: out of memory\n";
  return ExitCode::impossible;
} catch (const std::exception& error) {
  console.err << "fctool: " << error.what() << "\n";
  return ExitCode::impossible;
} catch (...) {
  console.err << "fctool: an unknown error\n";
  return ExitCode::impossible;
}

}  // namespace qor::host::cli
