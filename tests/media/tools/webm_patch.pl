# Usage: webm_patch.pl IN OUT without-cues | impossible-duration | unknown-sizes
# Copies a WebM file with its index blanked out, with a stated duration of 3000 years, or with
# clusters that do not say how long they are.
use strict;
use warnings;

my ($from, $to, $what) = @ARGV;
open my $in, '<:raw', $from or die "$from: $!\n";
my $data = do { local $/; <$in> };
close $in;

if ($what eq 'without-cues') {
    # The element becomes an empty one of the same length ("Void", with a length of 8 bytes).
    my $at = rindex $data, "\x1c\x53\xbb\x6b";
    die "$from has no cues\n" if $at < 0;
    my $rest = length($data) - $at - 9;
    substr $data, $at, 9, "\xec\x01" . substr(pack('Q>', $rest), 1);
} elsif ($what eq 'impossible-duration') {
    my $at = index $data, "\x44\x89\x88";
    die "$from states no duration\n" if $at < 0;
    substr $data, $at + 3, 8, pack 'd>', 1e14;
} elsif ($what eq 'unknown-sizes') {
    # A length of which all bits are set is an unknown one, however many bytes it takes.
    my $clusters = 0;
    for (my $at = 0; ($at = index $data, "\x1f\x43\xb6\x75", $at) >= 0; $at += 4) {
        my $bytes = 9 - length sprintf '%b', ord substr $data, $at + 4, 1;
        my $unknown = substr pack('Q>', (1 << 7 * $bytes + 1) - 1), 8 - $bytes;
        substr $data, $at + 4, $bytes, $unknown;
        $clusters++;
    }
    die "$from has no clusters\n" unless $clusters;
} else {
    die "unknown patch: $what\n";
}

open my $out, '>:raw', $to or die "$to: $!\n";
print $out $data;
close $out or die "$to: $!\n";
